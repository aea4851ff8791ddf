#include "demo/firm_figures.h"

#include "foundation/shared_routines.h"
#include "platform/masks.h"
#include "platform/store/connection.h"

namespace {

Currency sumOf(Connection& store, const QString& column, const char* table, const QString& where = {},
               const QVariantList& values = {}) {
    const QString statement = QString("SELECT SUM(%1) AS Total FROM %2%3").arg(column, table, where);
    return store.execute({statement, values}).currency("Total");
}

Currency stockValue(Connection& store) {
    Currency sum;
    for (Recordset items = store.execute("SELECT CostPrice, Balance FROM tblItemMaster"); !items.eof();
         items.moveNext())
        sum += items.currency("CostPrice") * items.currency("Balance");
    return sum;
}

QString tableRow(const QString& what, const QString& before, const QString& after) {
    return what.leftJustified(28) + before.rightJustified(18) + after.rightJustified(18);
}

QString amount(Currency value) { return formatNumber(value, mask::amount); }

}  // namespace

FirmFigures firmFigures(Connection& store, const QDate& day) {
    FirmFigures figures;
    figures.receivable = sumOf(store, "Balance", "tblSalesMaster");
    figures.payable = sumOf(store, "Balance", "tblPurchaseMaster");
    figures.stockValue = stockValue(store);
    figures.salesOfDay = sumOf(store, "TotalAmount", "tblSalesMaster", " WHERE RefDate = ?", {day});
    figures.costOfSales =
        sumOf(store, "SalesCost", "tblStockValuation", " WHERE BookID = 'S' AND TransDate = ?", {day});
    figures.waiting = CountRecords(store, "tblForPosting");
    return figures;
}

QStringList figuresTable(const FirmFigures& before, const FirmFigures& after) {
    const auto row = [&](const QString& what, Currency FirmFigures::*figure) {
        return tableRow(what, amount(before.*figure), amount(after.*figure));
    };
    return {tableRow("", "before", "after"),
            row("Receivable", &FirmFigures::receivable),
            row("Payable", &FirmFigures::payable),
            row("Stock at cost", &FirmFigures::stockValue),
            row("Sales of the day", &FirmFigures::salesOfDay),
            row("Cost of the day's sales", &FirmFigures::costOfSales),
            tableRow("Documents waiting", formatCount(before.waiting), formatCount(after.waiting))};
}
