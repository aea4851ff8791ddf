#include "support/test_store.h"

#include "foundation/schema.h"
#include "foundation/shared_routines.h"
#include "foundation/store_place.h"
#include "platform/clock.h"
#include "platform/store/transaction.h"
#include "support/files.h"
#include "support/test_server.h"

#include <QFile>

namespace {
// What of a document is written differently for a sale and for a purchase.
struct Book {
    const char* letter;
    const char* master;
    const char* key;
    const char* date;
    const char* total;
    const char* details;
    const char* quantity;
};
constexpr Book sales{"S", "tblSalesMaster", "RefNo", "RefDate", "TotalAmount", "tblSalesDetails", "Served"};
constexpr Book purchases{
    "P",        "tblPurchaseMaster", "PurchaseNo", "PurchaseDate", "PurchaseAmount", "tblPurchaseDetails",
    "Delivered"};

QString deliveredStore() {
    static const QTemporaryDir folder;
    const QString path = folder.filePath("delivered.mdb");
    if (!QFile::exists(path)) makeDeliveredStore(path);
    return path;
}

Currency totalOf(const LineRow& line) {
    return line.quantity * (line.price - PercentOf(line.discount, line.price));
}

void addMaster(Connection& store, const Book& book, const DocumentRow& document, Currency total) {
    insertRow(store, book.master,
              QString("%1, %2, %3, ContactNo, Balance, Printed, UpdatedBy, DateUpdate")
                  .arg(book.key, book.date, book.total),
              {document.number, document.date, bound(total), document.contactId, bound(total),
               document.printed, "ADMIN", Clock::now()});
}

void addLine(Connection& store, const Book& book, const QString& number, const LineRow& line) {
    insertRow(store, book.details,
              QString("Reference, ItemID, Ordered, %1, Unit, UnitPrice, Discount, Total").arg(book.quantity),
              {number, line.item, bound(line.quantity), bound(line.quantity), "PC", bound(line.price),
               bound(line.discount), bound(totalOf(line))});
}

void queue(Connection& store, const Book& book, const DocumentRow& document) {
    insertRow(store, "tblForPosting", "BookID, Reference, Contact, TransDate",
              {book.letter, document.number, document.contactId, document.date});
    for (const LineRow& line : document.lines)
        if (!RecordFound(store, "tblForPostingItem", "ItemID", line.item))
            insertRow(store, "tblForPostingItem", "ItemID", {line.item});
}

void addDocument(Connection& store, const Book& book, const DocumentRow& document) {
    Currency total;
    for (const LineRow& line : document.lines) total += totalOf(line);
    Transaction unit(store);
    addMaster(store, book, document, total);
    for (const LineRow& line : document.lines) addLine(store, book, document.number, line);
    if (document.queued) queue(store, book, document);
    unit.commit();
}
}  // namespace

void copyDeliveredStore(const QString& path) {
    ASSERT_TRUE(QFile::copy(deliveredStore(), path)) << qPrintable(path);
}

TestStore::TestStore() {
    if (!onTestServer()) copyDeliveredStore(path());
    const QString place = onTestServer() ? newTestDatabase() : path();
    connection_.open(place, passwordFor(place));
}

// The program finds the database as at a firm, by its settings.
QString newStoreIn(const QString& folder) {
    if (!onTestServer()) {
        const QString path = folder + '/' + storeFileName;
        copyDeliveredStore(path);
        return path;
    }
    const QString uri = newTestDatabase();
    writeFile(folder + "/Store.ini", uri.toUtf8());
    return uri;
}

void SessionTest::SetUp() {
    const QString place = newStoreIn(folder_.path());
    setProgramFolder(folder_.path());
    session() = Session{};
    store().open(place, passwordFor(place));
    session().StoreOpen = true;
    session().CurrentUserCode = "ADMIN";
    session().CurrentUserName = "ADMIN";
}

void SessionTest::TearDown() {
    store().close();
    setProgramFolder({});
    session() = Session{};
    Connection::setIdleHook({});
    Connection::setStatementHook({});
    Clock::unfreeze();
}

void insertRow(Connection& store, const QString& table, const QString& columns, const QVariantList& values) {
    const QString marks = QStringList(values.size(), "?").join(", ");
    store.run({QString("INSERT INTO %1 (%2) VALUES (%3)").arg(table, columns, marks), values});
}

void addContact(Connection& store, const ContactRow& contact) {
    insertRow(store, "tblContactMaster",
              "ContactID, ContactName, IsCustomer, IsSupplier, Discount, Terms, CreditLimit",
              {contact.id, contact.name, contact.customer, contact.supplier, bound(contact.discount),
               bound(contact.terms), bound(contact.creditLimit)});
}

void addItem(Connection& store, const ItemRow& item) {
    insertRow(store, "tblItemMaster",
              "ItemCode, Description, Unit, CostPrice, SellingPrice, WholesalePrice, OrderLevel",
              {item.code, item.description, item.unit, bound(item.cost), bound(item.selling),
               bound(item.wholesale), bound(item.orderLevel)});
}

void addSale(Connection& store, const DocumentRow& sale) { addDocument(store, sales, sale); }

void addPurchase(Connection& store, const DocumentRow& purchase) { addDocument(store, purchases, purchase); }

QString valueOf(Connection& store, const Sql& statement) {
    const Recordset row = store.execute(statement);
    return row.eof() ? "none" : row.textAt(0);
}
