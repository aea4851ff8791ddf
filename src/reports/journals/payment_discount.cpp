#include "reports/journals/payment_discount.h"

#include "foundation/shared_routines.h"
#include "platform/parsing.h"
#include "platform/store/bulk.h"

namespace {
// A line, and the percent of its sale's first payment. Sales that got none are left out.
Sql discountedLines(const char* key) {
    return QString(
               "SELECT line.%1, line.UnitPrice, line.Discount, line.Served, paid.Discount FROM "
               "tblSalesDetails AS line INNER JOIN tblReceiptDetails AS paid ON paid.ZevRef = (SELECT "
               "MIN(ZevRef) FROM tblReceiptDetails WHERE Reference = line.Reference) AND paid.Discount <> 0")
        .arg(key);
}

QHash<QString, Currency> summedUp(Connection& store, const Sql& lines) {
    QHash<QString, Currency> discounts;
    for (BulkReader line(store, lines); line.next();) {
        const Currency price = line.currency(1);
        const Currency net = price - PercentOf(line.currency(2), price);
        discounts[discountKey(line.text(0))] += PercentOf(line.currency(4), net) * line.currency(3);
    }
    return discounts;
}
}  // namespace

QString discountKey(const QString& code) { return trim(code).toLower(); }

QHash<QString, Currency> discountsOfSales(Connection& store, const std::optional<Period>& period) {
    if (!period) return summedUp(store, discountedLines("Reference"));
    return summedUp(store, discountedLines("Reference") +
                               " WHERE line.Reference IN (SELECT RefNo FROM tblSalesMaster" +
                               wherePeriod("RefDate", period) + ")");
}

QHash<QString, Currency> discountsOfItems(Connection& store) {
    return summedUp(store, discountedLines("ItemID"));
}
