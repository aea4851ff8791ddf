#include "books/cached_balance.h"

#include "books/balances.h"
#include "books/long_pass.h"
#include "books/passed_over.h"
#include "foundation/shared_routines.h"

#include <optional>

static Term termOf(const BulkReader& row, int column) {
    return row.isNull(column) ? Term() : Term(row.currency(column));
}

static Currency receivableOf(const BulkReader& row, int first) {
    return receivableFigure(termOf(row, first), termOf(row, first + 1), termOf(row, first + 2));
}

static Currency differenceOf(const BulkReader& row, int first) {
    return differenceFigure(termOf(row, first), termOf(row, first + 1));
}

const CachedBalance receivableBalance{
    "tblSalesMaster",
    "RefNo",
    SalesBalance,
    "Book Balance could not be Updated! Book Not Found!",
    "Please Wait While System Computes for Receivable Balances...",
    "m.TotalAmount, (SELECT SUM(Amount) FROM tblReceiptDetails WHERE Reference = m.RefNo),"
    " (SELECT SUM(DiscountAmount) FROM tblReceiptDetails WHERE Reference = m.RefNo)",
    receivableOf};

const CachedBalance payableBalance{"tblPurchaseMaster",
                                   "PurchaseNo",
                                   PurchaseBalance,
                                   "Book Balance could not be Updated! Book Not Found!",
                                   "Please Wait While System Computes for Payable Balances...",
                                   "m.PurchaseAmount, (SELECT SUM(PayAmount) FROM tblDisbursementDetails"
                                   " WHERE PuchaseID = m.PurchaseNo AND DirectPayment = 0)",
                                   differenceOf};

const CachedBalance inventoryBalance{
    "tblItemMaster",
    "ItemCode",
    ItemBalance,
    "Inventory Balance could not be Updated! Item Not Found!",
    "Please Wait While System Computes for Inventory Balances...",
    "(SELECT SUM(Delivered) FROM tblPurchaseDetails WHERE ItemID = m.ItemCode),"
    " (SELECT SUM(Served) FROM tblSalesDetails WHERE ItemID = m.ItemCode)",
    differenceOf};

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
// All keys of one table, in their order.
class BalancePass {
  public:
    BalancePass(Connection& store, const CachedBalance& cached)
        : store_(store), cached_(cached), keys_(cached.table, cached.key) {}
    bool readOn(const UnitClock& clock);
    bool passNext();
    void tell(Progress& progress) const { progress.setValue(keys_.done()); }

  private:
    Sql terms() const;

    Connection& store_;
    const CachedBalance& cached_;
    KeyWalk keys_;
};
}  // namespace

Sql BalancePass::terms() const {
    return Sql(QString("SELECT m.%1, m.Balance, %2 FROM %3 m")
                   .arg(cached_.key, cached_.terms, cached_.table)) +
           keys_.condition() + Sql(QString(" ORDER BY m.%1").arg(cached_.key));
}

bool BalancePass::readOn(const UnitClock& clock) {
    BulkReader row(store_, terms());
    BulkWriter balance(store_, writeStatement(cached_));
    while (row.next()) {
        const QString key = row.text(0);
        const Currency figure = cached_.figure(row, 2);
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
