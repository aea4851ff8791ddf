// Loads a firm's paperwork through the modules of the program and runs the end of day:
//   load_paperwork FOLDER STORE
// makes STORE, with a purchase for each supplier and month that covers what is sold, and every order; what
// was not shipped is served 0. Prints what it did, what was asked or refused on the way, and the sums of both
// sides.
#include "bench/paperwork.h"
#include "books/end_of_day.h"
#include "foundation/schema.h"
#include "foundation/session.h"
#include "masters/contact_document.h"
#include "masters/item_document.h"
#include "platform/clock.h"
#include "platform/masks.h"
#include "platform/store/transaction.h"
#include "purchases/purchase_document.h"
#include "sales/sales_document.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QMap>
#include <QTextStream>

namespace {
QTextStream& out() {
    static QTextStream stream(stdout);
    return stream;
}

// A share of an amount, to the centavo: the paperwork tells list prices only.
Currency share(Currency amount, int percent) {
    return Currency::fromTenThousandths((amount.tenThousandths() * percent / 100 + 50) / 100 * 100);
}

QString price(Currency value) { return formatNumber(value, mask::price); }

class Loader {
  public:
    Loader(Connection& store, const Paperwork& paperwork) : store_(store), paperwork_(paperwork) {}

    void load() {
        Transaction unit(store_);
        for (const PaperContact& contact : paperwork_.suppliers) addContact(contact, false);
        for (const PaperContact& contact : paperwork_.customers) addContact(contact, true);
        for (const PaperItem& item : paperwork_.items) addItem(item);
        sumMonths();
        for (const PaperOrder& order : paperwork_.orders) {
            buyFor(order.date);
            sell(order);
        }
        unit.commit();
    }

    void endOfDay() {
        for (const Box& box : postAndCostAll(store_)) refused_ += "end of day: " + box.text;
    }

    void report() {
        out() << purchases_ << " purchases and " << sales_ << " sales of " << lines_ << " lines saved; "
              << unshipped_ << " not shipped, served 0\n";
        out() << questions_ << " lines sold under their cost, after a Yes\n";
        for (const QString& text : refused_) out() << "refused: " << text << '\n';
        line("sales by the paperwork", expected_);
        line("sales in the books", sum("SELECT SUM(TotalAmount) AS Halin FROM tblSalesMaster"));
        line("receivable", sum("SELECT SUM(Balance) AS Halin FROM tblSalesMaster"));
        line("purchases", sum("SELECT SUM(PurchaseAmount) AS Halin FROM tblPurchaseMaster"));
        line("cost of sales", sum("SELECT SUM(SalesCost) AS Halin FROM tblStockValuation"));
        line("left on hand", sum("SELECT SUM(Balance) AS Halin FROM tblItemMaster"));
    }

    bool agrees() {
        return refused_.isEmpty() && sum("SELECT SUM(TotalAmount) AS Halin FROM tblSalesMaster") == expected_;
    }

  private:
    void line(const QString& what, Currency amount) {
        out() << what.leftJustified(24) << formatNumber(amount, mask::amount).rightJustified(18) << '\n';
    }

    Currency sum(const char* statement) { return store_.execute(statement).currency("Halin"); }

    bool accept(const Outcome& outcome, const QString& what) {
        if (const Fault* fault = std::get_if<Fault>(&outcome)) refused_ += what + ": " + fault->box.text;
        return isDone(outcome);
    }

    void addContact(const PaperContact& contact, bool customer) {
        const ContactEntry entry{contact.name, contact.address, contact.phone, {},       "30",
                                 {},           "0.00",          "0",           customer, !customer};
        QString id;
        accept(SaveContact(store_, entry, true, id), contact.name);
        names_[(customer ? "C" : "S") + contact.code] = contact.name;
    }

    void addItem(const PaperItem& item) {
        const QDate opened = paperwork_.orders.first().date.addDays(-31);
        const ItemEntry entry{item.code,
                              item.description,
                              "PC",
                              {},
                              item.packing,
                              names_.value("S" + item.supplier),
                              price(share(item.listPrice, 60)),
                              price(item.listPrice),
                              price(share(item.listPrice, 90)),
                              formatDate(opened),
                              item.reorderLevel.toPlainText(),
                              "0"};
        accept(SaveItem(store_, entry, true, item.code), item.description);
        items_[item.code] = item;
    }

    static QDate monthOf(const QDate& date) { return QDate(date.year(), date.month(), 1); }

    void sumMonths() {
        for (const PaperOrder& order : paperwork_.orders)
            for (const PaperLine& sold : order.lines)
                if (order.shipped)
                    needed_[monthOf(order.date)][items_[sold.item].supplier][sold.item] += sold.quantity;
    }

    // On the first order of a month: what every supplier must deliver on its first day.
    void buyFor(const QDate& date) {
        const auto month = needed_.take(monthOf(date));
        for (auto supplier = month.begin(); supplier != month.end(); ++supplier) {
            OrderDocument order = start(purchaseOrders, monthOf(date), names_.value("S" + supplier.key()));
            for (auto need = supplier->begin(); need != supplier->end(); ++need)
                addLine(purchaseOrders, order, need.key(), need.value(), need.value(),
                        share(items_[need.key()].listPrice, 60), {});
            if (accept(saveOrder(store_, purchaseOrders, order), order.code)) ++purchases_;
        }
    }

    void sell(const PaperOrder& paper) {
        OrderDocument order = start(salesOrders, paper.date, names_.value("C" + paper.customer));
        order.remarks = "Order " + paper.number;
        for (const PaperLine& sold : paper.lines) {
            const Currency served = paper.shipped ? sold.quantity : Currency();
            addLine(salesOrders, order, sold.item, sold.quantity, served, sold.price, sold.discount);
            expected_ += totalOf(sold, served);
        }
        if (!accept(saveOrder(store_, salesOrders, order), paper.number)) return;
        ++sales_;
        if (!paper.shipped) ++unshipped_;
    }

    // By the paperwork's own figures: no amount in it needs more than six decimals, so this is exact until
    // the total is rounded to the centavo, half away from zero.
    static Currency totalOf(const PaperLine& sold, Currency served) {
        const qint64 net = sold.price.tenThousandths() * (1000000 - sold.discount.tenThousandths()) / 1000000;
        const qint64 tenThousandths = net * served.tenThousandths() / 10000;
        return Currency::fromTenThousandths((tenThousandths + 50) / 100 * 100);
    }

    OrderDocument start(const OrderBook& book, const QDate& date, const QString& contact) {
        Clock::freeze(QDateTime(date, QTime(9, 0)));
        OrderDocument order = newOrder(store_, book);
        order.contactName = contact;
        return order;
    }

    void addLine(const OrderBook& book, OrderDocument& order, const QString& item, Currency ordered,
                 Currency moved, Currency unitPrice, Currency discount) {
        LineEntry entry =
            entryOf(makeOrderLine(item, items_[item].description, "PC", ordered, moved, unitPrice, discount));
        const auto notEntered = [](const QString&) { return false; };
        LineCheck check = checkLine(store_, book, lineOrder(order), entry, notEntered);
        if (const Question* asked = std::get_if<Question>(&check.outcome)) {
            ++questions_;
            check =
                checkLine(store_, book, lineOrder(order), entry, notEntered, {{asked->key, BoxAnswer::Yes}});
        }
        if (!accept(check.outcome, order.code + " item " + item)) return;
        order.lines += lineOf(entry);
        ++lines_;
    }

    Connection& store_;
    const Paperwork& paperwork_;
    QHash<QString, QString> names_;
    QHash<QString, PaperItem> items_;
    QMap<QDate, QMap<QString, QMap<QString, Currency>>> needed_;
    QStringList refused_;
    Currency expected_;
    int purchases_ = 0, sales_ = 0, lines_ = 0, unshipped_ = 0, questions_ = 0;
};

int load(const QString& folder, const QString& path) {
    const Paperwork paperwork = readPaperwork(folder);
    registerSchema();
    makeDeliveredStore(path);
    Connection store;
    store.open(path, storePassword);
    session().CurrentUserCode = "ADMIN";
    Loader loader(store, paperwork);
    QElapsedTimer watch;
    watch.start();
    loader.load();
    out() << "loaded in " << watch.restart() << " ms\n";
    loader.endOfDay();
    out() << "end of day in " << watch.elapsed() << " ms\n";
    loader.report();
    return loader.agrees() ? 0 : 1;
}
}  // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    if (argc != 3) {
        QTextStream(stderr) << "usage: load_paperwork FOLDER STORE\n";
        return 2;
    }
    try {
        return load(argv[1], argv[2]);
    } catch (const std::exception& failure) {
        QTextStream(stderr) << failure.what() << '\n';
        return 1;
    }
}
