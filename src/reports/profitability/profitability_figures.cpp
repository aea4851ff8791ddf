#include "reports/profitability/profitability_figures.h"

#include "platform/store/bulk.h"
#include "reports/journals/payment_discount.h"

using Figures = QHash<QString, Currency>;

static constexpr const char* ledgerOfSales = "SELECT Reference, SalesCost, ItemCode FROM tblStockValuation";

// The condition that leaves the rows of the period's sales.
static Sql ofPeriod(const std::optional<Period>& period) {
    if (!period) return {};
    return Sql(" AND Reference IN (SELECT RefNo FROM tblSalesMaster") + wherePeriod("RefDate", period) +
           Sql(")");
}

static Figures sumsByReference(Connection& store, const Sql& rows) {
    Figures sums;
    for (BulkReader row(store, rows); row.next();) sums[discountKey(row.text(0))] += row.currency(1);
    return sums;
}

Figures costsOfSales(Connection& store, const std::optional<Period>& period) {
    return sumsByReference(store, Sql(ledgerOfSales) + Sql(" WHERE BookID = 'S'") + ofPeriod(period));
}

Figures costsOfSoldItems(Connection& store, const std::optional<Period>& period) {
    Figures costs;
    const Sql rows =
        Sql(ledgerOfSales) + Sql(" WHERE BookID = 'S'") + ofPeriod(period) + Sql(" ORDER BY ZevRef");
    for (BulkReader row(store, rows); row.next();) {
        const QString key = soldItemKey(row.text(0), row.text(2));
        if (!costs.contains(key)) costs.insert(key, row.currency(1));
    }
    return costs;
}

Figures grantedOnSales(Connection& store, const std::optional<Period>& period) {
    return sumsByReference(store, Sql("SELECT Reference, DiscountAmount FROM tblReceiptDetails WHERE "
                                      "DiscountAmount <> 0") +
                                      ofPeriod(period));
}

QString soldItemKey(const QString& sale, const QString& item) {
    return discountKey(sale) + u'\n' + discountKey(item);
}

Currency percentOfTotal(Currency discount, Currency total) {
    return perUnit(discount * Currency::fromInteger(100), total);
}

Currency perUnit(Currency amount, Currency quantity) {
    return quantity.isZero() ? Currency() : divide(amount, quantity);
}
