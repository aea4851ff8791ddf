#include "books/cached_balance.h"

#include "books/balances.h"
#include "books/key_order.h"
#include "books/long_pass.h"
#include "books/passed_over.h"
#include "foundation/shared_routines.h"
#include "platform/store/bulk.h"
#include "platform/store/read_ahead.h"

#include <algorithm>
#include <memory>

static Currency receivableOf(const std::vector<Term>& terms) {
    return receivableFigure(terms[0], terms[1], terms[2]);
}

static Currency payableOf(const std::vector<Term>& terms) { return differenceFigure(terms[0], terms[1]); }

static Currency inventoryOf(const std::vector<Term>& terms) { return differenceFigure(terms[1], terms[2]); }

const CachedBalance receivableBalance{"tblSalesMaster",
                                      "RefNo",
                                      SalesBalance,
                                      SalesBalanceSums,
                                      "Book Balance could not be Updated! Book Not Found!",
                                      "Please Wait While System Computes for Receivable Balances...",
                                      "TotalAmount",
                                      {{"tblReceiptDetails", "Reference", "Amount, DiscountAmount", 2, ""}},
                                      receivableOf};

const CachedBalance payableBalance{
    "tblPurchaseMaster",
    "PurchaseNo",
    PurchaseBalance,
    PurchaseBalanceSums,
    "Book Balance could not be Updated! Book Not Found!",
    "Please Wait While System Computes for Payable Balances...",
    "PurchaseAmount",
    {{"tblDisbursementDetails", "PuchaseID", "PayAmount", 1, "DirectPayment = 0"}},
    payableOf};

const CachedBalance inventoryBalance{
    "tblItemMaster",
    "ItemCode",
    ItemBalance,
    ItemBalanceSums,
    "Inventory Balance could not be Updated! Item Not Found!",
    "Please Wait While System Computes for Inventory Balances...",
    "NULL",
    {{"tblPurchaseDetails", "ItemID", "Delivered", 1, ""}, {"tblSalesDetails", "ItemID", "Served", 1, ""}},
    inventoryOf};

static QString writeStatement(const CachedBalance& cached) {
    return QString("UPDATE %1 SET Balance = ? WHERE %2 = ?").arg(cached.table, cached.key);
}

void storeBalance(Connection& store, const CachedBalance& cached, const QString& key, Boxes& boxes) {
    const Sql write{writeStatement(cached), {bound(cached.compute(store, key)), key}};
    if (passOverStatement(store, write) == 0) boxes += exclamation("Error!", cached.missing);
}

void updateBalances(Connection& store, const CachedBalance& cached, const QStringList& keys) {
    std::vector<Sql> sums;
    for (const QString& key : keys) sums.push_back(cached.sums(key));
    const ReadAhead ahead(store, sums);
    QList<Currency> figures;
    for (const QString& key : keys) figures += cached.compute(store, key);
    for (qsizetype at = 0; at < keys.size(); ++at)
        passOverRead([&] { store.runLater({writeStatement(cached), {bound(figures[at]), keys[at]}}); });
}

namespace {
// The rows of one source in the order of their keys, walked beside the keys of the master. Adding them up
// here takes half the time that the engine takes for its sums.
class KeyedSums {
  public:
    KeyedSums(Connection& store, const SumSource& source, const KeyWalk& keys);
    // Adds the sums of this key, none where it has no rows. Keys must come in their order.
    void addTerms(QByteArrayView key, std::vector<Term>& terms);

  private:
    bool isAt(QByteArrayView key);
    void addRow();

    BulkReader row_;
    std::vector<Term> sums_;
    bool beyondRange_ = false;
    bool more_;
};

// All keys of one table, in their order.
class BalancePass {
  public:
    BalancePass(Connection& store, const CachedBalance& cached)
        : store_(store), cached_(cached), keys_(cached.table, cached.key) {}
    bool readOn(const UnitClock& clock);
    bool passNext();
    void tell(Progress& progress) const { progress.setValue(keys_.done()); }

  private:
    struct Stale {
        qint64 row;
        Currency figure;
    };
    using Sums = std::vector<std::unique_ptr<KeyedSums>>;
    Sums sums() const;
    Sql masters() const;
    bool collect(const UnitClock& clock, std::vector<Stale>& stale);
    bool write(const UnitClock& clock, std::vector<Stale>& stale);

    Connection& store_;
    const CachedBalance& cached_;
    KeyWalk keys_;
};
}  // namespace

static Sql rowsByKey(const SumSource& source, const KeyWalk& keys) {
    return Sql(QString("SELECT %1, %2 FROM %3").arg(source.key, source.columns, source.table)) +
           keys.clause(source.key, source.filter) + Sql(QString(" ORDER BY %1").arg(source.key));
}

static Term termOf(const BulkReader& row, int column) {
    return row.isNull(column) ? Term() : Term(row.currency(column));
}

KeyedSums::KeyedSums(Connection& store, const SumSource& source, const KeyWalk& keys)
    : row_(store, rowsByKey(source, keys)),
      sums_(static_cast<size_t>(source.columnCount)),
      more_(row_.next()) {}

bool KeyedSums::isAt(QByteArrayView key) {
    for (; more_; more_ = row_.next()) {
        const int place = row_.isNull(0) ? -1 : compareKeys(row_.bytes(0), key);
        if (place >= 0) return place == 0;
    }
    return false;
}

void KeyedSums::addRow() {
    try {
        for (size_t at = 0; at < sums_.size(); ++at)
            if (const Term term = termOf(row_, static_cast<int>(at) + 1))
                sums_[at] = sums_[at].value_or(Currency()) + *term;
    } catch (const OverflowError&) {
        beyondRange_ = true;
    }
}

// Where one of the sums leaves the range, none of them counts.
void KeyedSums::addTerms(QByteArrayView key, std::vector<Term>& terms) {
    std::ranges::fill(sums_, Term());
    beyondRange_ = false;
    for (; isAt(key); more_ = row_.next()) addRow();
    if (beyondRange_) std::ranges::fill(sums_, Term());
    terms.insert(terms.end(), sums_.begin(), sums_.end());
}

Sql BalancePass::masters() const {
    return Sql(QString("SELECT %1, Balance, %2, RowNo FROM %3")
                   .arg(cached_.key, cached_.ownTerm, cached_.table)) +
           keys_.clause(cached_.key) + Sql(QString(" ORDER BY %1").arg(cached_.key));
}

BalancePass::Sums BalancePass::sums() const {
    Sums sums;
    for (const SumSource& source : cached_.sources)
        sums.push_back(std::make_unique<KeyedSums>(store_, source, keys_));
    return sums;
}

// Leaves half of the unit's time for writing, where there is something to write.
bool BalancePass::collect(const UnitClock& clock, std::vector<Stale>& stale) {
    constexpr qint64 keysBetweenLooks = 32;
    BulkReader row(store_, masters());
    const Sums sources = sums();
    std::vector<Term> terms;
    while (row.next()) {
        terms.assign(1, termOf(row, 2));
        for (const auto& source : sources) source->addTerms(row.bytes(0), terms);
        const Currency figure = cached_.figure(terms);
        if (row.isNull(1) || row.currency(1) != figure) stale.push_back({row.integer(3), figure});
        keys_.pass(row.bytes(0));
        if (keys_.done() % keysBetweenLooks != 0) continue;
        if (stale.empty() ? clock.isOver() : clock.isHalfOver()) return true;
    }
    return false;
}

// In the order of the rows, when nobody reads the table any more; false when the time was too short. What the
// store refuses stays as it is.
bool BalancePass::write(const UnitClock& clock, std::vector<Stale>& stale) {
    std::ranges::sort(stale, {}, &Stale::row);
    BulkWriter balance(store_, QString("UPDATE %1 SET Balance = ? WHERE RowNo = ?").arg(cached_.table),
                       BulkWriter::PassedOver);
    bool inTime = true;
    for (const auto& [row, figure] : stale) {
        inTime = !clock.isOver();
        if (!inTime) break;
        balance.bind(1, figure);
        balance.bind(2, row);
        balance.step();
    }
    balance.flush();
    return inTime;
}

// Figures that there was no time to write are stale with the end of the unit: their keys come again.
bool BalancePass::readOn(const UnitClock& clock) {
    const KeyWalk start = keys_;
    std::vector<Stale> stale;
    const bool more = collect(clock, stale);
    if (write(clock, stale)) return more;
    keys_ = start;
    return true;
}

// A key that the reading of all fails on is tried by itself.
bool BalancePass::passNext() {
    const std::optional<QString> key = keys_.next(store_);
    if (!key) return false;
    Boxes boxes;
    storeBalance(store_, cached_, *key, boxes);
    keys_.pass(key->toUtf8());
    return true;
}

void recomputeBalances(Connection& store, const CachedBalance& cached, Progress& progress) {
    passOverRead([&] {
        const ProgressScope scope(progress, cached.waitText, CountRecords(store, cached.table));
        BalancePass pass(store, cached);
        runInUnits(store, pass, progress);
    });
}
