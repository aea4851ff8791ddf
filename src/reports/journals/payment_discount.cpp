#include "reports/journals/payment_discount.h"

#include "foundation/shared_routines.h"
#include "platform/store/bulk.h"

namespace {
// The percent of the first payment of each sale.
KeyedFigures firstPercents(Connection& store, const Sql& sales) {
    KeyedFigures percents;
    for (BulkReader paid(
             store, Sql("SELECT Reference, Discount FROM tblReceiptDetails") + sales + " ORDER BY ZevRef");
         paid.next();)
        percents.giveFirst(paid.bytes(0), paid.currency(1));
    return percents;
}

// Lines of sales that got none count nothing.
KeyedFigures summedUp(Connection& store, const char* key, const Sql& sales) {
    const KeyedFigures percents = firstPercents(store, sales);
    KeyedFigures discounts;
    const QString lines = "SELECT Reference, UnitPrice, Discount, Served, %1 FROM tblSalesDetails";
    for (BulkReader line(store, Sql(lines.arg(key)) + sales); line.next();) {
        const Currency percent = percents.of(line.bytes(0));
        if (percent.isZero()) continue;
        const Currency price = line.currency(1);
        const Currency net = price - PercentOf(line.currency(2), price);
        discounts[line.bytes(4)] += PercentOf(percent, net) * line.currency(3);
    }
    return discounts;
}
}  // namespace

Sql ofSales(const char* before, const std::optional<Period>& period) {
    if (!period) return {};
    return Sql(before) + Sql("Reference IN (SELECT RefNo FROM tblSalesMaster") +
           wherePeriod("RefDate", period) + Sql(")");
}

KeyedFigures discountsOfSales(Connection& store, const std::optional<Period>& period) {
    return summedUp(store, "Reference", ofSales(" WHERE ", period));
}

KeyedFigures discountsOfItems(Connection& store) { return summedUp(store, "ItemID", {}); }
