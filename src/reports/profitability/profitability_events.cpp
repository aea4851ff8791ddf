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
                 const QByteArray sale = row.key("RefNo");
                 const Currency net = row.currency("TotalAmount") - discounts.of(sale);
                 const Currency cost = costs.of(sale);
                 fields.setFigure("txtGross", net);
                 fields.setFigure("txtCost", cost);
                 fields.setFigure("txtProfit", net - cost);
             }}};
}

// And here it is the money that all payments of the sale took off, as a percent of its total. There are many
// lines: the names of the columns are made once.
ReportEvents profitOfLines(Connection&, const std::optional<Period>&) {
    return {{on(SectionKind::Detail), [](const ReportSource& row, SectionFields& fields) {
                 showProfit({.served = row.currency(QStringLiteral("Served")),
                             .price = row.currency(QStringLiteral("UnitPrice")),
                             .discount = row.currency(QStringLiteral("Discount")),
                             .payDiscount = percentOfTotal(row.currency(QStringLiteral("Granted")),
                                                           row.currency(QStringLiteral("TotalAmount"))),
                             .cost = row.currency(QStringLiteral("Cost"))},
                            fields);
             }}};
}
