#include "bench/books_generator.h"

#include "books/numbering.h"
#include "books/posting_queue.h"
#include "books/stock_valuation.h"
#include "foundation/shared_routines.h"
#include "platform/store/bulk.h"
#include "platform/store/transaction.h"

#include <QDate>
#include <random>

namespace {
constexpr int linesPerDocument = 5;
constexpr qint64 salesPerPurchase = 4;
constexpr qint64 salesPerItem = 10;
constexpr qint64 salesPerContact = 50;
constexpr qint64 days = 730;

struct Book {
    const char* bookId;
    const char* insertMaster;
    const char* insertLine;
    const char* insertStock;
    qint64 mostPieces;
};
constexpr Book sales{
    "S", "INSERT INTO tblSalesMaster (RefNo, RefDate, ContactNo, TotalAmount) VALUES (?, ?, ?, ?)",
    "INSERT INTO tblSalesDetails (Reference, ItemID, Ordered, Served, Unit, UnitPrice, Discount, Total)"
    " VALUES (?, ?, ?3, ?3, 'PC', ?4, ?5, ?6)",
    "INSERT INTO tblStockValuation (ZevRef, BookID, Reference, Contact, ItemCode, TransDate, StockOut, "
    "OutPrice)"
    " VALUES (?, ?, ?, ?, ?, ?, ?, ?)",
    9};
constexpr Book purchases{
    "P",
    "INSERT INTO tblPurchaseMaster (PurchaseNo, PurchaseDate, ContactNo, PurchaseAmount) VALUES (?, ?, ?, ?)",
    "INSERT INTO tblPurchaseDetails (Reference, ItemID, Ordered, Delivered, Unit, UnitPrice, Discount, Total)"
    " VALUES (?, ?, ?3, ?3, 'PC', ?4, ?5, ?6)",
    "INSERT INTO tblStockValuation (ZevRef, BookID, Reference, Contact, ItemCode, TransDate, StockIn, "
    "InPrice)"
    " VALUES (?, ?, ?, ?, ?, ?, ?, ?)",
    40};

class Generator {
  public:
    Generator(Connection& store, qint64 salesDocuments)
        : store_(store), salesDocuments_(salesDocuments), random_(20260101) {}
    void run();

  private:
    struct Writers {
        BulkWriter master, line, stock;
        Writers(Connection& store, const Book& book)
            : master(store, book.insertMaster),
              line(store, book.insertLine),
              stock(store, book.insertStock) {}
    };
    qint64 below(qint64 end) { return static_cast<qint64>(random_() % static_cast<quint64>(end)); }
    QString contact() { return QString::number(1000000001 + below(contacts())); }
    qint64 contacts() const { return std::max<qint64>(20, salesDocuments_ / salesPerContact); }
    qint64 items() const { return std::max<qint64>(50, salesDocuments_ / salesPerItem); }
    void addMasters();
    Currency addDocument(Writers& writers, const Book& book, const QString& number, const QString& contact,
                         const QString& date);
    Currency addLine(Writers& writers, const Book& book, const QString& number, const QString& contact,
                     const QString& date);
    void addReceipt(BulkWriter& receipt, const QString& refNo, Currency total);
    void addVoucher(BulkWriter& voucher, const QString& purchaseNo, Currency total);

    Connection& store_;
    qint64 salesDocuments_;
    std::mt19937_64 random_;
    qint64 stockKey_ = 0;
    qint64 receiptKey_ = 0;
};

void Generator::addMasters() {
    BulkWriter contact(store_, "INSERT INTO tblContactMaster (ContactID, ContactName) VALUES (?, ?)");
    for (qint64 at = 0; at < contacts(); ++at) {
        contact.bind(1, QString::number(1000000001 + at));
        contact.bind(2, QString("Contact %1").arg(at));
        contact.step();
    }
    BulkWriter item(store_, "INSERT INTO tblItemMaster (ItemCode, Description) VALUES (?, ?)");
    for (qint64 at = 0; at < items(); ++at) {
        item.bind(1, QString("IT%1").arg(at, 6, 10, QChar(u'0')));
        item.bind(2, QString("Goods number %1").arg(at));
        item.step();
    }
}

Currency Generator::addLine(Writers& writers, const Book& book, const QString& number, const QString& contact,
                            const QString& date) {
    const QString item = QString("IT%1").arg(below(items()), 6, 10, QChar(u'0'));
    const Currency pieces = Currency::fromInteger(1 + below(book.mostPieces));
    const Currency price = Currency::fromTenThousandths(10000 + below(5000000));
    const Currency discount =
        below(4) == 0 ? Currency::fromTenThousandths(25000 * (1 + below(8))) : Currency();
    const Currency net = NetOfPercent(discount, price);
    writers.line.bind(1, number);
    writers.line.bind(2, item);
    writers.line.bind(3, pieces);
    writers.line.bind(4, price);
    writers.line.bind(5, discount);
    writers.line.bind(6, pieces * net);
    writers.line.step();
    writers.stock.bind(1, ++stockKey_);
    writers.stock.bind(2, QString(book.bookId));
    writers.stock.bind(3, number);
    writers.stock.bind(4, contact);
    writers.stock.bind(5, item);
    writers.stock.bind(6, date);
    writers.stock.bind(7, pieces);
    writers.stock.bind(8, net);
    writers.stock.step();
    return pieces * net;
}

Currency Generator::addDocument(Writers& writers, const Book& book, const QString& number,
                                const QString& contact, const QString& date) {
    Currency total;
    for (int line = 0; line < linesPerDocument; ++line)
        total += addLine(writers, book, number, contact, date);
    writers.master.bind(1, number);
    writers.master.bind(2, date);
    writers.master.bind(3, contact);
    writers.master.bind(4, total);
    writers.master.step();
    return total;
}

void Generator::addReceipt(BulkWriter& receipt, const QString& refNo, Currency total) {
    receipt.bind(1, ++receiptKey_);
    receipt.bind(2, refNo);
    receipt.bind(3, below(3) == 0 ? Currency::fromTenThousandths(total.tenThousandths() / 2) : total);
    receipt.bind(4, Currency());
    receipt.step();
}

void Generator::addVoucher(BulkWriter& voucher, const QString& purchaseNo, Currency total) {
    voucher.bind(1, "V" + purchaseNo);
    voucher.bind(2, purchaseNo);
    voucher.bind(3, total);
    voucher.bind(4, below(10) == 0 ? -1 : 0);
    voucher.step();
}

void Generator::run() {
    Transaction unit(store_);
    addMasters();
    Writers sale(store_, sales);
    Writers purchase(store_, purchases);
    BulkWriter receipt(
        store_,
        "INSERT INTO tblReceiptDetails (ZevRef, Reference, Amount, DiscountAmount) VALUES (?, ?, "
        "?, ?)");
    BulkWriter voucher(store_,
                       "INSERT INTO tblDisbursementDetails (VoucherID, PuchaseID, PayAmount, DirectPayment)"
                       " VALUES (?, ?, ?, ?)");
    for (qint64 at = 0; at < salesDocuments_; ++at) {
        const QString date = QDate(2025, 1, 1).addDays(at * days / salesDocuments_).toString(Qt::ISODate);
        const QString number = QString("%1-%2-%3").arg(date.mid(5, 2)).arg(1001 + at).arg(date.left(4));
        if (at % salesPerPurchase == 0) {
            const Currency total = addDocument(purchase, purchases, number, contact(), date);
            if (below(10) < 7) addVoucher(voucher, number, total);
        }
        const Currency total = addDocument(sale, sales, number, contact(), date);
        if (below(10) < 7) addReceipt(receipt, number, total);
    }
    ResetStockKey(store_);
    unit.commit();
}

void queueDocument(Connection& store, const char* bookId, const QString& number, const QString& contact,
                   const QDate& date, const char* details) {
    RemoveStockValuation(store, bookId, number);
    QueueBookForPosting(store, bookId, number, contact, date);
    auto lines = store.execute({QString("SELECT ItemID FROM %1 WHERE Reference = ?").arg(details), {number}});
    for (; !lines.eof(); lines.moveNext()) QueueItemForPosting(store, lines.text("ItemID"));
}
}  // namespace

void generateBooks(Connection& store, qint64 salesDocuments) { Generator(store, salesDocuments).run(); }

void queueOnePercent(Connection& store) {
    Transaction unit(store);
    for (auto sale =
             store.execute("SELECT RefNo, RefDate, ContactNo FROM tblSalesMaster WHERE RowNo % 100 = 7");
         !sale.eof(); sale.moveNext())
        queueDocument(store, "S", sale.text("RefNo"), sale.text("ContactNo"), sale.date("RefDate"),
                      "tblSalesDetails");
    for (auto purchase = store.execute(
             "SELECT PurchaseNo, PurchaseDate, ContactNo FROM tblPurchaseMaster WHERE RowNo % 100 = 7");
         !purchase.eof(); purchase.moveNext())
        queueDocument(store, "P", purchase.text("PurchaseNo"), purchase.text("ContactNo"),
                      purchase.date("PurchaseDate"), "tblPurchaseDetails");
    unit.commit();
}
