#include "books/cached_balance.h"

#include "books/balances.h"
#include "books/long_pass.h"
#include "books/passed_over.h"
#include "foundation/shared_routines.h"
#include "platform/store/bulk.h"

#include <algorithm>
#include <memory>

static Currency receivableOf(const std::vector<Term>& terms) {
    return receivableFigure(terms[0], terms[1], terms[2]);
}

static Currency payableOf(const std::vector<Term>& terms) { return differenceFigure(terms[0], terms[1]); }

static Currency inventoryOf(const std::vector<Term>& terms) { return differenceFigure(terms[1], terms[2]); }

const CachedBalance receivableBalance{
    "tblSalesMaster",
    "RefNo",
    SalesBalance,
    "Book Balance could not be Updated! Book Not Found!",
    "Please Wait While System Computes for Receivable Balances...",
    "TotalAmount",
    {{"tblReceiptDetails", "Reference", "SUM(Amount), SUM(DiscountAmount)", 2, ""}},
    receivableOf};

const CachedBalance payableBalance{
    "tblPurchaseMaster",
    "PurchaseNo",
    PurchaseBalance,
    "Book Balance could not be Updated! Book Not Found!",
    "Please Wait While System Computes for Payable Balances...",
    "PurchaseAmount",
    {{"tblDisbursementDetails", "PuchaseID", "SUM(PayAmount)", 1, "DirectPayment = 0"}},
    payableOf};

const CachedBalance inventoryBalance{"tblItemMaster",
                                     "ItemCode",
                                     ItemBalance,
                                     "Inventory Balance could not be Updated! Item Not Found!",
                                     "Please Wait While System Computes for Inventory Balances...",
                                     "NULL",
                                     {{"tblPurchaseDetails", "ItemID", "SUM(Delivered)", 1, ""},
                                      {"tblSalesDetails", "ItemID", "SUM(Served)", 1, ""}},
                                     inventoryOf};

static QString writeStatement(const CachedBalance& cached) {
    return QString("UPDATE %1 SET Balance = ? WHERE %2 = ?").arg(cached.table, cached.key);
}

void storeBalance(Connection& store, const CachedBalance& cached, const QString& key, Boxes& boxes) {
    const Currency balance = cached.compute(store, key);
    qint64 written = -1;
    passOverWrite(store, [&] { written = store.run({writeStatement(cached), {bound(balance), key}}); });
    if (written == 0) boxes += exclamation("Error!", cached.missing);
}

void updateBalance(Connection& store, const CachedBalance& cached, const QString& key, Boxes& boxes) {
    passOverRead([&] {
        auto rows =
            store.execute({QString("SELECT %1 FROM %2 WHERE %1 = ?").arg(cached.key, cached.table), {key}});
        for (; !rows.eof(); rows.moveNext()) storeBalance(store, cached, rows.text(cached.key), boxes);
    });
}

namespace {
// The sums of one source in the order of their keys, walked beside the keys of the master.
class KeyedSums {
  public:
    KeyedSums(Connection& store, const SumSource& source, const KeyWalk& keys);
    // Adds the sums of this key, none where it has no rows. Keys must come in their order.
    void addTerms(QByteArrayView key, std::vector<Term>& terms);

  private:
    BulkReader row_;
    int sumCount_;
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
    using Sums = std::vector<std::unique_ptr<KeyedSums>>;
    Sums sums() const;
    Sql masters() const;

    Connection& store_;
    const CachedBalance& cached_;
    KeyWalk keys_;
};
}  // namespace

static Sql sumsByKey(const SumSource& source, const KeyWalk& keys) {
    return Sql(QString("SELECT %1, %2 FROM %3").arg(source.key, source.sums, source.table)) +
           keys.clause(source.key, source.filter) + Sql(QString(" GROUP BY %1 ORDER BY %1").arg(source.key));
}

static Term termOf(const BulkReader& row, int column) {
    return row.isNull(column) ? Term() : Term(row.currency(column));
}

static unsigned char folded(char letter) {
    return static_cast<unsigned char>(letter >= 'A' && letter <= 'Z' ? letter + 32 : letter);
}

// The order of the store's text keys: without regard to the case of the plain letters.
static bool comesBefore(QByteArrayView a, QByteArrayView b) {
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                        [](char x, char y) { return folded(x) < folded(y); });
}

KeyedSums::KeyedSums(Connection& store, const SumSource& source, const KeyWalk& keys)
    : row_(store, sumsByKey(source, keys)), sumCount_(source.sumCount), more_(row_.next()) {}

void KeyedSums::addTerms(QByteArrayView key, std::vector<Term>& terms) {
    while (more_ && (row_.isNull(0) || comesBefore(row_.bytes(0), key))) more_ = row_.next();
    const bool found = more_ && !comesBefore(key, row_.bytes(0));
    for (int column = 1; column <= sumCount_; ++column)
        terms.push_back(found ? termOf(row_, column) : Term());
}

Sql BalancePass::masters() const {
    return Sql(QString("SELECT %1, Balance, %2 FROM %3").arg(cached_.key, cached_.ownTerm, cached_.table)) +
           keys_.clause(cached_.key) + Sql(QString(" ORDER BY %1").arg(cached_.key));
}

BalancePass::Sums BalancePass::sums() const {
    Sums sums;
    for (const SumSource& source : cached_.sources)
        sums.push_back(std::make_unique<KeyedSums>(store_, source, keys_));
    return sums;
}

bool BalancePass::readOn(const UnitClock& clock) {
    BulkReader row(store_, masters());
    BulkWriter balance(store_, writeStatement(cached_));
    const Sums sources = sums();
    std::vector<Term> terms;
    while (row.next()) {
        terms.assign(1, termOf(row, 2));
        for (const auto& source : sources) source->addTerms(row.bytes(0), terms);
        const QString key = row.text(0);
        const Currency figure = cached_.figure(terms);
        if (row.isNull(1) || row.currency(1) != figure) {
            balance.bind(1, figure);
            balance.bind(2, key);
            balance.step();
        }
        keys_.pass(key);
        if (clock.isOver()) return true;
    }
    return false;
}

// A sum that overflows fails the reading of all; by itself only the failed term of its key counts 0.
bool BalancePass::passNext() {
    const std::optional<QString> key = keys_.next(store_);
    if (!key) return false;
    Boxes boxes;
    storeBalance(store_, cached_, *key, boxes);
    keys_.pass(*key);
    return true;
}

void recomputeBalances(Connection& store, const CachedBalance& cached, Progress& progress) {
    passOverRead([&] {
        const ProgressScope scope(progress, cached.waitText, CountRecords(store, cached.table));
        BalancePass pass(store, cached);
        runInUnits(store, pass, progress);
    });
}
