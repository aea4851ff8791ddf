// The costing of every item, over the whole ledger at once.
#include "books/item_costs.h"
#include "books/ledger.h"
#include "books/stock_valuation.h"
#include "books/touched_items.h"
#include "books/whole_ledger.h"
#include "foundation/shared_routines.h"

namespace {
// Other workstations may write between its units: an item whose rows they touched since the pass began is
// left out, and costed at the end by itself, in one unit that reads its rows anew.
class Revaluation {
  public:
    Revaluation(Connection& store, Progress& progress)
        : store_(store), progress_(progress), touched_(store), ledger_(store) {}
    void run();

  private:
    void read();
    bool writeOn(const UnitClock& clock);
    bool costTouchedOn(const UnitClock& clock);
    std::vector<bool> touchedItems();
    void tellWritten();

    Connection& store_;
    Progress& progress_;
    TouchedItems touched_;
    WholeLedger ledger_;
    size_t written_ = 0;
    QStringList costAnew_;
};
}  // namespace

void Revaluation::run() {
    read();
    ledger_.cost();
    inUnits(store_, [this](const UnitClock& clock) {
        tellWritten();
        return writeOn(clock);
    });
    inUnits(store_, [this](const UnitClock& clock) { return costTouchedOn(clock); });
}

// Half of the bar is for the reading, half for the writing.
void Revaluation::read() {
    const Recordset last = store_.execute("SELECT MAX(ZevRef) AS Highest FROM tblStockValuation");
    const qint64 highest = std::max<qint64>(1, last.integer("Highest"));
    while (ledger_.readOn(UnitClock())) {
        progress_.setValue(static_cast<qint64>(static_cast<double>(ledger_.lastKey()) /
                                               static_cast<double>(highest) * ledger_.itemCount() / 2));
        letOthersIn(store_);
    }
}

std::vector<bool> Revaluation::touchedItems() {
    std::vector<bool> touched(static_cast<size_t>(ledger_.itemCount()));
    costAnew_ = touched_.codes();
    for (const QString& code : std::as_const(costAnew_))
        if (const int item = ledger_.itemOf(code.toUtf8()); item >= 0)
            touched[static_cast<size_t>(item)] = true;
    return touched;
}

// A row that the store refuses keeps what it has; what has undone the whole unit ends the pass.
bool Revaluation::writeOn(const UnitClock& clock) {
    constexpr size_t rowsBetweenLooks = 64;
    const std::vector<bool> touched = touchedItems();
    const auto& changes = ledger_.changes();
    ledger::Writer writer(store_, BulkWriter::PassedOver);
    for (; written_ < changes.size(); ++written_) {
        if (written_ % rowsBetweenLooks == 0 && clock.isOver()) break;
        const WholeLedger::Change& change = changes[written_];
        if (!touched[static_cast<size_t>(change.item)]) writer.write(change.zevRef, change.figures);
    }
    writer.flush();
    return written_ < changes.size();
}

bool Revaluation::costTouchedOn(const UnitClock& clock) {
    while (!costAnew_.isEmpty() && !clock.isOver()) {
        const QString code = costAnew_.takeFirst();
        if (ledger_.itemOf(code.toUtf8()) >= 0) RecomputeItemCosts(store_, code);
    }
    return !costAnew_.isEmpty();
}

void Revaluation::tellWritten() {
    const auto& changes = ledger_.changes();
    const double part =
        changes.empty() ? 1 : static_cast<double>(written_) / static_cast<double>(changes.size());
    progress_.setValue(static_cast<qint64>((1 + part) / 2 * ledger_.itemCount()));
}

void RecomputeStockValuation(Connection& store, Progress& progress) {
    passOverRead([&] {
        const ProgressScope scope(progress, balanceText, CountRecords(store, "tblItemMaster"));
        Revaluation(store, progress).run();
    });
}
