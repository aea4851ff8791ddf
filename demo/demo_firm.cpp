#include "demo/demo_firm.h"

#include "books/end_of_day.h"
#include "demo/demo_collections.h"
#include "demo/demo_payments.h"
#include "demo/demo_trade.h"
#include "demo/required.h"
#include "foundation/encryption.h"
#include "foundation/new_store.h"
#include "foundation/schema.h"
#include "foundation/session.h"
#include "masters/contact_document.h"
#include "masters/item_document.h"
#include "masters/unit_master.h"
#include "platform/clock.h"
#include "platform/masks.h"
#include "platform/parsing.h"
#include "platform/store/place.h"
#include "platform/store/transaction.h"
#include "purchases/purchase_document.h"
#include "sales/sales_document.h"

#include <QTemporaryDir>

namespace {
// Who may do what at the demo firm: the flags are columns of tblUserMaster, the codes menu rights.
struct DemoUser {
    const char* code;
    const char* fullName;
    const char* description;
    QStringList flags;
    QList<int> menus;
};

const QList<DemoUser>& demoUsers() {
    static const QList<DemoUser> users = {
        {"CLERK",
         "Maria Dizon",
         "Sales Clerk",
         {"PrintDRAccess", "InqItemAccess", "InqContactAccess"},
         {100, 101, 200, 202, 400, 403}},
        {"CASHIER", "Jun Abella", "Cashier", {"POSUser", "InqContactAccess"}, {100, 102}}};
    return users;
}

void addUser(Connection& store, const DemoUser& user) {
    Recordset row = store.openTable("tblUserMaster");
    row.addNew();
    row.set("UserCode", user.code);
    row.set("FullName", user.fullName);
    row.set("Description", user.description);
    row.set("Password", EncryptText(QString(user.code).toLower()));
    row.set("UpdatedBy", session().CurrentUserCode);
    row.set("DateUpdated", Clock::today());
    for (const QString& flag : user.flags) row.set(flag, true);
    row.update();
    Recordset rights = store.openTable("tblUserDetails");
    for (const int menu : user.menus) {
        rights.addNew();
        rights.set("UserID", user.code);
        rights.set("MenuID", menu);
        rights.update();
    }
}

void nameTheFirm(Connection& store) {
    Recordset row = store.openTable("tblSystemProfile", "WHERE 1 = 1");
    row.set("CompanyName", "Talisay Builders' Mercantile");
    row.set("CompanyAddress", "Cebu South Road, Tabunok, Talisay City, Cebu");
    row.set("CompanyTelNo", "(032) 555-0100");
    row.set("CompanyEmail", "office@talisaymercantile.example");
    row.set("CompanyTIN", "000-555-100-000");
    row.set("ValueTax", Currency::fromInteger(12));
    row.set("Prepared", "Maria Dizon");
    row.set("Checked", "Jun Abella");
    row.set("Approved", "Teresa Lim");
    row.update();
}

void addContact(Connection& store, const DemoContact& contact) {
    const ContactEntry entry{contact.name,       contact.address,   contact.telephone,   contact.email,
                             contact.terms,      contact.remarks,   contact.creditLimit, contact.discount,
                             contact.isCustomer, contact.isSupplier};
    QString id;
    require(SaveContact(store, entry, true, id), contact.name);
}

QString price(Currency value) { return formatNumber(value, mask::price); }

QString addItem(Connection& store, const DemoItem& item) {
    const QString code = NextItemCode(store);
    const ItemEntry entry{code,
                          item.description,
                          item.unit,
                          item.locator,
                          {},
                          item.supplier,
                          price(item.cost),
                          price(item.selling),
                          price(item.wholesale),
                          formatDate(Clock::today()),
                          QString::number(item.reorderLevel),
                          "0"};
    require(SaveItem(store, entry, true, code), item.description);
    return code;
}

class DemoFirm {
  public:
    DemoFirm(Connection& store, const QDate& lastDay) : store_(store), lastDay_(lastDay) {}

    void fill() {
        const QList<DemoContact> contacts = demoContacts();
        items_ = demoItems();
        openFor(lastDay_.addDays(-365));
        nameTheFirm(store_);
        for (const DemoUser& user : demoUsers()) addUser(store_, user);
        for (const DemoItem& item : items_) AddUnitCode(store_, item.unit);
        for (const DemoContact& contact : contacts) {
            addContact(store_, contact);
            discounts_[contact.name] = numberOrZero(contact.discount);
            terms_[contact.name] = contact.terms.toInt();
        }
        for (const DemoItem& item : items_) codes_ += addItem(store_, item);
        trade(DemoTrade(contacts, items_, lastDay_).documents());
    }

  private:
    void openFor(const QDate& day) { Clock::freeze(QDateTime(day, QTime(8, 30))); }

    void trade(const QList<DemoDocument>& documents) {
        bool closed = false;
        for (const DemoDocument& document : documents) {
            if (!closed && document.date == lastDay_) {
                closeTheBooks();
                closed = true;
            }
            if (document.date != Clock::today()) endDay(document.date.addDays(-1));
            openFor(document.date);
            save(document);
        }
        endDay(lastDay_);
        collections_.settleChecks(lastDay_.addDays(-2));
        payments_.settleChecks(lastDay_.addDays(-2));
    }

    void endDay(const QDate& day) {
        collections_.collect(day);
        for (; paidUntil_ <= day; paidUntil_ = paidUntil_.addDays(1)) {
            openFor(paidUntil_);
            payments_.pay(paidUntil_, static_cast<int>(paidUntil_.daysTo(lastDay_)));
        }
    }

    void save(const DemoDocument& document) {
        const OrderBook& book = document.isSale ? salesOrders : purchaseOrders;
        OrderDocument order = newOrder(store_, book);
        order.contactName = document.contact;
        order.wholesale = document.wholesale;
        for (const DemoLine& line : document.lines) order.lines += lineOf(line, document);
        require(saveOrder(store_, book, order), order.code);
        const int terms = terms_[document.contact];
        if (document.isSale)
            collections_.sold(order.code, document.contact, terms, document.date);
        else
            payments_.bought(order.code, document.contact, terms, document.date);
    }

    OrderLine lineOf(const DemoLine& line, const DemoDocument& document) const {
        const DemoItem& item = items_[line.item];
        return makeOrderLine(codes_[line.item], item.description, item.unit,
                             Currency::fromInteger(line.ordered), Currency::fromInteger(line.moved),
                             line.price, discounts_[document.contact]);
    }

    // What has been printed leaves the list that a journal opens with; then the end of day.
    void closeTheBooks() {
        const QDate week = lastDay_.addDays(-7);
        store_.run({"UPDATE tblSalesMaster SET Printed = True, RecordLock = True WHERE RefDate < ?", {week}});
        store_.run({"UPDATE tblPurchaseMaster SET Printed = True, RecordLock = True WHERE PurchaseDate < ?",
                    {week}});
        store_.run(
            {"UPDATE tblReceiptMaster SET Printed = True, RecordLock = True WHERE PaymentDate < ?", {week}});
        store_.run(
            {"UPDATE tblDisbursementMaster SET Printed = True, RecordLock = True WHERE VoucherDate < ?",
             {week}});
        const Boxes boxes = postAndCostAll(store_);
        if (!boxes.isEmpty()) throw std::runtime_error(boxes.first().text.toStdString());
    }

    Connection& store_;
    QDate lastDay_;
    QDate paidUntil_ = lastDay_.addDays(-364);  // the first day whose payments are not made yet
    QList<DemoItem> items_;
    QStringList codes_;
    QHash<QString, Currency> discounts_;
    QHash<QString, int> terms_;
    DemoCollections collections_{store_};
    DemoPayments payments_{store_};
};

// The user and the clock of the firm's own days; the caller's come back afterwards.
class DemoDesk {
  public:
    DemoDesk() { session().CurrentUserCode = "ADMIN"; }
    ~DemoDesk() {
        Clock::unfreeze();
        session().CurrentUserCode = user_;
    }

  private:
    QString user_ = session().CurrentUserCode;
};
}  // namespace

void fillDemoFirm(Connection& store, const QDate& lastDay) {
    const DemoDesk desk;
    Transaction unit(store);
    DemoFirm(store, lastDay).fill();
    unit.commit();
}

static void makeDemoFile(const QString& path) {
    makeStore(path, [](Connection& store) {
        fillDeliveredStore(store);
        fillDemoFirm(store, Clock::today());
    });
}

// A server would take a minute for a year of trade in one unit.
static void makeDemoDatabase(const QString& uri) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(storeFileName);
    makeDemoFile(path);
    copyStore(path, uri);
}

void makeDemoStore(const QString& place) { isServer(place) ? makeDemoDatabase(place) : makeDemoFile(place); }
