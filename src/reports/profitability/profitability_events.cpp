#include "reports/profitability/profitability_events.h"

#include "foundation/shared_routines.h"
#include "reports/journals/payment_discount.h"
#include "reports/profitability/profitability_figures.h"

namespace {
struct SoldLine {
    Currency served, price, discount;
    Currency payDiscount;  // percent
    Currency cost;         // of all that was served
};

void showProfit(const SoldLine& line, SectionFields& fields) {
    const Currency net = NetOfPercent(line.payDiscount, NetOfPercent(line.discount, line.price));
    const Currency cost = perUnit(line.cost, line.served);
    fields.setFigure("txtPayDiscount", line.payDiscount);
    fields.setFigure("txtNetPrice", net);
    fields.setFigure("txtGross", line.price * line.served);
    fields.setFigure("txtNetTotal", net * line.served);
    fields.setFigure("txtCost", cost);
    fields.setFigure("txtProfitPerUnit", net - cost);
    fields.setFigure("txtTotalProfit", (net - cost) * line.served);
}
}  // namespace

// The discount that counts here is the percent of the sale's first payment.
ReportEvents profitOfSales(Connection& store, const std::optional<Period>& period) {
    return {{on(SectionKind::Detail),
             [discounts = discountsOfSales(store, period), costs = costsOfSales(store, period)](
                 const ReportSource& row, SectionFields& fields) {
                 const QString sale = discountKey(row.text("RefNo"));
                 const Currency net = row.currency("TotalAmount") - discounts.value(sale);
                 const Currency cost = costs.value(sale);
                 fields.setFigure("txtGross", net);
                 fields.setFigure("txtCost", cost);
                 fields.setFigure("txtProfit", net - cost);
             }}};
}

// And here it is the money that all payments of the sale took off, as a percent of its total.
ReportEvents profitOfLines(Connection& store, const std::optional<Period>& period) {
    return {{on(SectionKind::Detail),
             [granted = grantedOnSales(store, period), costs = costsOfSoldItems(store, period)](
                 const ReportSource& row, SectionFields& fields) {
                 const QString sale = row.text("RefNo");
                 showProfit({.served = row.currency("Served"),
                             .price = row.currency("UnitPrice"),
                             .discount = row.currency("Discount"),
                             .payDiscount = percentOfTotal(granted.value(discountKey(sale)),
                                                           row.currency("TotalAmount")),
                             .cost = costs.value(soldItemKey(sale, row.text("ItemID")))},
                            fields);
             }}};
}
