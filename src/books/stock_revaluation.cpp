// The costing of every item, in one ordered scan of the ledger.
#include "books/item_costs.h"
#include "books/ledger.h"
#include "books/long_pass.h"
#include "books/stock_valuation.h"
#include "foundation/shared_routines.h"

namespace {
// The items of the master, in their order; rows of an item that has gone keep what they have.
class Revaluation {
  public:
    explicit Revaluation(Connection& store) : store_(store) {}
    bool readOn(const UnitClock& clock);
    bool passNext();
    void tell(Progress& progress) const;

  private:
    Sql rows() const;
    void take(const BulkReader& row);
    void finishItem(ledger::Writer& writer);

    Connection& store_;
    KeyWalk items_{"tblItemMaster", "ItemCode"};
    ItemCosting item_;
};
}  // namespace

// The item's code comes first, then the columns of the ledger; an item without rows has one of nulls.
Sql Revaluation::rows() const {
    return Sql(QString("SELECT %1, m.ItemCode FROM tblItemMaster m LEFT JOIN tblStockValuation v"
                       " ON v.ItemCode = m.ItemCode")
                   .arg(ledger::columns)) +
           items_.clause("m.ItemCode") + Sql(QString(" ORDER BY m.ItemCode, ") + ledger::order);
}

void Revaluation::take(const BulkReader& row) {
    if (!row.isNull(0)) item_.add(ledger::readRow(row));
}

// A figure beyond the range ends its own pass over the item, not the other one.
static void passOverOverflow(auto step) {
    try {
        step();
    } catch (const OverflowError&) {
    }
}

void Revaluation::finishItem(ledger::Writer& writer) {
    passOverOverflow([this] { item_.computeBalances(); });
    passOverOverflow([this] { item_.computeSalesCost(); });
    writer.write(item_);
}

bool Revaluation::readOn(const UnitClock& clock) {
    constexpr int codeColumn = 7;
    BulkReader row(store_, rows());
    ledger::Writer writer(store_);
    bool more = row.next();
    while (more && !clock.isOver()) {
        const QByteArray code = row.bytes(codeColumn).toByteArray();
        for (item_.clear(); more && row.bytes(codeColumn) == code; more = row.next()) take(row);
        finishItem(writer);
        items_.pass(QString::fromUtf8(code));
    }
    return more;
}

// An item that the store fails on is left as it is.
bool Revaluation::passNext() {
    const std::optional<QString> code = items_.next(store_);
    if (code) items_.pass(*code);
    return code.has_value();
}

void Revaluation::tell(Progress& progress) const {
    if (items_.last())
        progress.setText(balanceText + LookupField(store_, "ItemCode", "tblItemMaster", "Description",
                                                   *items_.last(), LookupMode::DisplayText));
    progress.setValue(items_.done());
}

void RecomputeStockValuation(Connection& store, Progress& progress) {
    passOverRead([&] {
        const ProgressScope scope(progress, balanceText, CountRecords(store, "tblItemMaster"));
        Revaluation pass(store);
        runInUnits(store, pass, progress);
    });
}
