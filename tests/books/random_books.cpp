#include "books/random_books.h"

#include "books/posting_queue.h"
#include "platform/store/transaction.h"
#include "support/test_store.h"

#include <random>

namespace {
class Maker {
  public:
    explicit Maker(unsigned seed) : random_(seed) {}
    Books make();

  private:
    qint64 below(qint64 end) { return static_cast<qint64>(random_() % static_cast<quint64>(end)); }
    bool oneIn(qint64 count) { return below(count) == 0; }
    template <class List>
    auto pick(const List& list) {
        return list[static_cast<size_t>(below(static_cast<qint64>(std::size(list))))];
    }
    Currency count(qint64 tenThousandths) { return Currency::fromTenThousandths(tenThousandths); }

    QString item();
    Currency quantity();
    Books::Line line();
    Books::Document document(const char* bookId, int number);
    Books::Payment payment();
    Books::Receipt receipt();
    Books::Voucher voucher(int number);
    QString number(const char* bookId, qint64 serial) { return QString("%1-%2").arg(bookId).arg(serial); }

    std::mt19937 random_;
    Books books_;
};

QString Maker::item() {
    if (oneIn(15)) return "unknown";
    const QString code = pick(books_.items);
    return oneIn(4) ? code.toLower() : code;
}

// Whole pieces, parts of them, nothing, and a few taken back.
Currency Maker::quantity() {
    if (oneIn(12)) return {};
    if (oneIn(15)) return count(-below(50000));
    return oneIn(3) ? count(below(200000)) : Currency::fromInteger(1 + below(20));
}

Books::Line Maker::line() {
    static constexpr qint64 percents[] = {0, 0, 0, 100000, 125000, 333333, -50000, 1};
    return {item(), quantity(), oneIn(3) ? count(below(3000000)) : Currency::fromInteger(below(300)),
            count(pick(percents))};
}

Books::Document Maker::document(const char* bookId, int serial) {
    Books::Document made{bookId,
                         number(bookId, serial),
                         QDate(2026, 1, 1).addDays(below(12)),
                         pick(books_.contacts),
                         count(below(90000000)),
                         {}};
    for (qint64 lines = below(6); lines > 0; --lines) made.lines.push_back(line());
    return made;
}

Books::Payment Maker::payment() {
    const auto sum = [&]() -> std::optional<Currency> {
        if (oneIn(10)) return std::nullopt;
        return count(below(60000000) - 5000000);
    };
    return {sum(), oneIn(2) ? Currency() : sum()};
}

Books::Receipt Maker::receipt() {
    Books::Receipt made{pick(books_.contacts), payment(), {}};
    for (qint64 lines = below(4); lines > 0; --lines)
        made.lines.push_back({number("S", below(30)), payment()});
    return made;
}

Books::Voucher Maker::voucher(int serial) {
    Books::Voucher made{number("V", serial), pick(books_.contacts), {}};
    for (qint64 lines = below(4); lines > 0; --lines)
        made.lines.push_back({number("P", below(20)), count(below(60000000) - 5000000), oneIn(4)});
    return made;
}

Books Maker::make() {
    for (int code = 1; code <= 7; ++code) books_.items += QString("ITEM%1").arg(code);
    for (int id = 1; id <= 4; ++id) books_.contacts += QString("C%1").arg(id);
    for (int serial = 0; serial < 18; ++serial) books_.documents.push_back(document("P", serial));
    for (int serial = 0; serial < 27; ++serial) books_.documents.push_back(document("S", serial));
    std::shuffle(books_.documents.begin(), books_.documents.end(), random_);
    for (int at = 0; at < 20; ++at) books_.receipts.push_back(receipt());
    for (int at = 0; at < 15; ++at) books_.vouchers.push_back(voucher(at));
    return books_;
}

QVariant nullable(const std::optional<Currency>& value) { return value ? bound(*value) : QVariant(); }

void writeDocument(Connection& store, const Books::Document& document) {
    const bool sale = document.bookId == "S";
    insertRow(store, sale ? "tblSalesMaster" : "tblPurchaseMaster",
              sale ? "RefNo, RefDate, ContactNo, TotalAmount"
                   : "PurchaseNo, PurchaseDate, ContactNo, PurchaseAmount",
              {document.number, document.date, document.contact, bound(document.total)});
    for (const Books::Line& line : document.lines) {
        insertRow(
            store, sale ? "tblSalesDetails" : "tblPurchaseDetails",
            QString("Reference, ItemID, %1, UnitPrice, Discount").arg(QString(sale ? "Served" : "Delivered")),
            {document.number, line.item, bound(line.quantity), bound(line.price), bound(line.discount)});
        QueueItemForPosting(store, line.item);
    }
    QueueBookForPosting(store, document.bookId, document.number, document.contact, document.date);
}

void writeReceipt(Connection& store, const Books::Receipt& receipt, qint64 payNo, qint64& zevRef) {
    insertRow(store, "tblReceiptMaster", "PayNo, CustomerNo, PaymentAmount, TotalDiscAmount",
              {payNo, receipt.customer, nullable(receipt.payment.paid), nullable(receipt.payment.granted)});
    for (const Books::ReceiptLine& line : receipt.lines)
        insertRow(
            store, "tblReceiptDetails", "ZevRef, PayCode, Reference, Amount, DiscountAmount",
            {++zevRef, payNo, line.reference, nullable(line.payment.paid), nullable(line.payment.granted)});
}

void writeVoucher(Connection& store, const Books::Voucher& voucher) {
    insertRow(store, "tblDisbursementMaster", "VoucherNo, ContactNo", {voucher.number, voucher.contact});
    for (const Books::VoucherLine& line : voucher.lines)
        insertRow(store, "tblDisbursementDetails", "VoucherID, PuchaseID, PayAmount, DirectPayment",
                  {voucher.number, line.purchase, bound(line.paid), line.direct});
}
}  // namespace

Books makeBooks(unsigned seed) { return Maker(seed).make(); }

void writeBooks(Connection& store, const Books& books) {
    Transaction unit(store);
    for (const QString& item : books.items)
        insertRow(store, "tblItemMaster", "ItemCode, Description", {item, item});
    for (const QString& contact : books.contacts)
        insertRow(store, "tblContactMaster", "ContactID, ContactName", {contact, "Name of " + contact});
    for (const Books::Document& document : books.documents) writeDocument(store, document);
    qint64 payNo = 0;
    qint64 zevRef = 0;
    for (const Books::Receipt& receipt : books.receipts) writeReceipt(store, receipt, ++payNo, zevRef);
    for (const Books::Voucher& voucher : books.vouchers) writeVoucher(store, voucher);
    unit.commit();
}
