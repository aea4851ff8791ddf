#include "books/item_costs.h"

#include "books/ledger.h"
#include "books/stock_valuation.h"
#include "platform/progress_scope.h"
#include "platform/store/transaction.h"

#include <optional>

Sql itemLedgerQuery(const QString& itemCode) {
    return {QString("SELECT %1 FROM tblStockValuation v WHERE v.ItemCode = ? ORDER BY %2")
                .arg(ledger::columns, ledger::order),
            {itemCode}};
}

static ItemCosting readItem(Connection& store, const QString& itemCode) {
    BulkReader reader(store, itemLedgerQuery(itemCode));
    ItemCosting item;
    while (reader.next()) item.add(ledger::readRow(reader));
    return item;
}

// A figure beyond the range is thrown when the rows before it have theirs in the store.
template <class Compute>
static void recompute(Connection& store, const QString& itemCode, Compute compute) {
    std::optional<OverflowError> overflow;
    Transaction unit(store);
    ItemCosting item = readItem(store, itemCode);
    try {
        compute(item);
    } catch (const OverflowError& error) {
        overflow = error;
    }
    ledger::Writer(store).write(item);
    unit.commit();
    if (overflow) throw *overflow;
}

static QString descriptionOf(Connection& store, const QString& itemCode) {
    const Recordset row =
        store.execute({"SELECT Description FROM tblItemMaster WHERE ItemCode = ?", {itemCode}});
    return row.eof() ? QString() : row.trimmed("Description");
}

void ComputeStockBalances(Connection& store, const QString& itemCode, Progress& progress) {
    const ProgressScope scope(progress, balanceText + descriptionOf(store, itemCode), 1);
    recompute(store, itemCode, [](ItemCosting& item) { item.computeBalances(); });
}

void ComputeSalesCost(Connection& store, const QString& itemCode, Progress& progress) {
    const ProgressScope scope(progress, salesCostText + descriptionOf(store, itemCode), 1);
    recompute(store, itemCode, [](ItemCosting& item) { item.computeSalesCost(); });
}

void ComputeItemCosts(Connection& store, const QString& itemCode,
                      const std::function<void(const char* text)>& tell, Boxes& boxes) {
    ItemCosting item = readItem(store, itemCode);
    tell(balanceText);
    item.computeBalances();
    tell(salesCostText);
    try {
        item.computeSalesCost();
    } catch (const OverflowError& error) {
        boxes += exclamation("Error!", error.what());
    }
    ledger::Writer(store).write(item);
}

static void passOverOverflow(auto step) {
    try {
        step();
    } catch (const OverflowError&) {
    }
}

void costPassingOver(ItemCosting& item) {
    passOverOverflow([&] { item.computeBalances(); });
    passOverOverflow([&] { item.computeSalesCost(); });
}

void RecomputeItemCosts(Connection& store, const QString& itemCode) {
    recompute(store, itemCode, costPassingOver);
}
