#include "books/books_model.h"

#include <cmath>
#include <map>

namespace {
bool same(const QString& a, const QString& b) { return a.compare(b, Qt::CaseInsensitive) == 0; }

// A product of two counts of ten-thousandths, halves to even.
qint64 product(qint64 a, qint64 b) {
    const long double exact = static_cast<long double>(a) * static_cast<long double>(b) / 10000.0L;
    return static_cast<qint64>(std::nearbyint(exact));
}

qint64 netPrice(const Books::Line& line) {
    const double discount =
        line.price.toDouble() * (static_cast<double>(line.discount.tenThousandths()) / 10000.0 / 100.0);
    return line.price.tenThousandths() - std::abs(static_cast<qint64>(std::nearbyint(discount * 10000.0)));
}

// A sum as the store gives it: none without a value.
struct Sum {
    qint64 total = 0;
    bool any = false;
    void add(const std::optional<Currency>& value) {
        if (!value) return;
        total += value->tenThousandths();
        any = true;
    }
};

struct PaymentSums {
    Sum paid, granted;
    void add(const Books::Payment& payment) {
        paid.add(payment.paid);
        granted.add(payment.granted);
    }
    qint64 counted() const { return paid.any && granted.any ? std::abs(paid.total + granted.total) : 0; }
};

qint64 totalOf(const Books& books, const QString& bookId,
               const std::function<bool(const Books::Document&)>& counts) {
    qint64 total = 0;
    for (const auto& document : books.documents)
        if (document.bookId == bookId && counts(document)) total += document.total.tenThousandths();
    return total;
}
}  // namespace

BooksModel::BooksModel(const Books& books) : books_(books) {
    post();
    std::map<QString, bool> items;
    for (const Row& row : ledger_) items[row.item.toUpper()] = true;
    for (const auto& [item, known] : items) {
        const Rows rows = rowsOf(item);
        balance(rows);
        cost(rows);
    }
}

qint64 BooksModel::salesBalance(const QString& refNo) const {
    PaymentSums payments;
    for (const auto& receipt : books_.receipts)
        for (const auto& line : receipt.lines)
            if (same(line.reference, refNo)) payments.add(line.payment);
    return totalOf(books_, "S", [&](const auto& sale) { return same(sale.number, refNo); }) -
           payments.counted();
}

qint64 BooksModel::customerBalance(const QString& contact) const {
    PaymentSums payments;
    for (const auto& receipt : books_.receipts)
        if (same(receipt.customer, contact)) payments.add(receipt.payment);
    return totalOf(books_, "S", [&](const auto& sale) { return same(sale.contact, contact); }) -
           payments.counted();
}

qint64 BooksModel::purchaseBalance(const QString& number) const {
    qint64 balance =
        totalOf(books_, "P", [&](const auto& purchase) { return same(purchase.number, number); });
    for (const auto& voucher : books_.vouchers)
        for (const auto& line : voucher.lines)
            if (same(line.purchase, number) && !line.direct) balance -= line.paid.tenThousandths();
    return balance;
}

qint64 BooksModel::supplierBalance(const QString& contact) const {
    qint64 balance =
        totalOf(books_, "P", [&](const auto& purchase) { return same(purchase.contact, contact); });
    for (const auto& voucher : books_.vouchers)
        for (const auto& line : voucher.lines)
            if (same(voucher.contact, contact) && !line.direct) balance -= line.paid.tenThousandths();
    return balance;
}

// In less out, of the documents that count.
qint64 BooksModel::moved(const QString& item,
                         const std::function<bool(const Books::Document&)>& counts) const {
    qint64 quantity = 0;
    for (const auto& document : books_.documents)
        for (const auto& line : document.lines)
            if (same(line.item, item) && counts(document))
                quantity += (document.bookId == "P" ? 1 : -1) * line.quantity.tenThousandths();
    return quantity;
}

qint64 BooksModel::itemBalance(const QString& item) const {
    return moved(item, [](const auto&) { return true; });
}

qint64 BooksModel::itemBalanceUntil(const QString& item, const QDate& date) const {
    return moved(item, [&](const auto& document) { return document.date <= date; });
}

qint64 BooksModel::servedOnOrder(const QString& item, const QString& refNo) const {
    return -moved(
        item, [&](const auto& document) { return document.bookId == "S" && same(document.number, refNo); });
}

// Purchases before sales, each by date, then as they were entered.
void BooksModel::post() {
    for (const char* bookId : {"P", "S"}) {
        std::vector<const Books::Document*> documents;
        for (const auto& document : books_.documents)
            if (document.bookId == bookId) documents.push_back(&document);
        std::stable_sort(documents.begin(), documents.end(),
                         [](const auto* a, const auto* b) { return a->date < b->date; });
        for (const auto* document : documents)
            for (const auto& line : document->lines)
                ledger_.push_back({bookId, document->number, line.item, document->date, ledger_.size(),
                                   line.quantity.tenThousandths(), netPrice(line)});
    }
}

BooksModel::Rows BooksModel::rowsOf(const QString& item) {
    Rows rows;
    for (Row& row : ledger_)
        if (same(row.item, item)) rows.push_back(&row);
    std::sort(rows.begin(), rows.end(), [](const Row* a, const Row* b) {
        return std::tie(a->date, a->bookId, a->place) < std::tie(b->date, b->bookId, b->place);
    });
    return rows;
}

void BooksModel::balance(const Rows& rows) {
    for (size_t end = 0; end < rows.size(); ++end)
        for (size_t at = 0; at <= end; ++at)
            rows[end]->balance +=
                rows[at]->bookId == "P" ? rows[at]->quantity : -std::abs(rows[at]->quantity);
}

// Lay all purchases end to end, and all sales beside them: a sale costs where the two overlap.
void BooksModel::cost(const Rows& rows) {
    qint64 saleStart = 0;
    for (Row* sale : rows) {
        if (sale->bookId != "S" || sale->quantity <= 0) continue;
        const qint64 saleEnd = saleStart + sale->quantity;
        qint64 layerStart = 0;
        for (const Row* layer : rows) {
            if (layer->bookId != "P" || layer->quantity <= 0) continue;
            const qint64 layerEnd = layerStart + layer->quantity;
            const qint64 overlap = std::min(saleEnd, layerEnd) - std::max(saleStart, layerStart);
            if (overlap > 0) sale->salesCost += product(overlap, layer->price);
            layerStart = layerEnd;
        }
        saleStart = saleEnd;
    }
}

qint64 BooksModel::valuation(const QString& item, const QDate& from, const QDate& to) const {
    Rows rows = const_cast<BooksModel*>(this)->rowsOf(item);
    std::erase_if(rows, [&](const Row* row) { return row->date < from || row->date > to; });
    if (rows.empty()) return 0;
    qint64 remaining = rows.back()->balance;
    qint64 value = 0;
    for (auto row = rows.rbegin(); row != rows.rend() && remaining > 0; ++row) {
        if ((*row)->bookId == "S") continue;
        value += product(std::min(remaining, (*row)->quantity), (*row)->price);
        remaining -= std::min(remaining, std::abs((*row)->quantity));
    }
    return value;
}

qint64 BooksModel::periodSalesCost(const QString& item, const QDate& from, const QDate& to) const {
    qint64 cost = 0;
    for (const Row& row : ledger_)
        if (same(row.item, item) && row.date >= from && row.date <= to) cost += row.salesCost;
    return cost;
}

qint64 BooksModel::costPrice(const QString& item) const {
    const qint64 quantity = itemBalance(item);
    if (quantity == 0) return 0;
    const double value = static_cast<double>(valuation(item, QDate(1900, 1, 1), QDate(2100, 1, 1))) / 10000.0;
    return static_cast<qint64>(std::nearbyint(value / (static_cast<double>(quantity) / 10000.0) * 10000.0));
}
