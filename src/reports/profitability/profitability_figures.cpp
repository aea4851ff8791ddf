#include "reports/profitability/profitability_figures.h"

#include "platform/store/bulk.h"
#include "reports/frame/worked_rows.h"
#include "reports/journals/document_lines.h"
#include "reports/journals/payment_discount.h"

#include <algorithm>

KeyedFigures costsOfSales(Connection& store, const std::optional<Period>& period) {
    KeyedFigures costs;
    for (BulkReader row(store, Sql("SELECT Reference, SalesCost FROM tblStockValuation WHERE BookID = 'S'") +
                                   ofSales(" AND ", period));
         row.next();)
        costs[row.bytes(0)] += row.currency(1);
    return costs;
}

namespace {
// What a sale cost by item: the few that it has.
using ItemCosts = std::vector<std::pair<int, Currency>>;

std::vector<ItemCosts> itemCosts(Connection& store, const DocumentLines& lines,
                                 const std::optional<Period>& period) {
    std::vector<ItemCosts> costs(static_cast<size_t>(lines.numbers().size()));
    for (BulkReader row(store,
                        Sql("SELECT Reference, ItemCode, SalesCost FROM tblStockValuation WHERE BookID "
                            "= 'S'") +
                            ofSales(" AND ", period) + " ORDER BY ZevRef");
         row.next();)
        if (const int sale = lines.numbers().find(row.bytes(0)); sale >= 0)
            costs[static_cast<size_t>(sale)].emplace_back(lines.items().find(row.bytes(1)), row.currency(2));
    return costs;
}

// The first row counts.
Currency costOf(const ItemCosts& costs, int item) {
    const auto found = std::ranges::find(costs, item, &ItemCosts::value_type::first);
    return found == costs.end() ? Currency() : found->second;
}

std::vector<Currency> granted(Connection& store, const DocumentLines& lines,
                              const std::optional<Period>& period) {
    std::vector<Currency> granted(static_cast<size_t>(lines.numbers().size()));
    for (BulkReader row(store, Sql("SELECT Reference, DiscountAmount FROM tblReceiptDetails WHERE "
                                   "DiscountAmount <> 0") +
                                   ofSales(" AND ", period));
         row.next();)
        if (const int sale = lines.numbers().find(row.bytes(0)); sale >= 0)
            granted[static_cast<size_t>(sale)] += row.currency(1);
    return granted;
}

struct SoldLine {
    DocumentLines::Line line;
    Currency cost, granted;
};

std::vector<SoldLine> soldLines(Connection& store, const DocumentLines& lines,
                                const std::optional<Period>& period) {
    const std::vector<ItemCosts> costs = itemCosts(store, lines, period);
    const std::vector<Currency> discounts = granted(store, lines, period);
    std::vector<SoldLine> sold;
    sold.reserve(lines.lines().size());
    for (const DocumentLines::Line& line : lines.lines())
        sold.push_back({line, costOf(costs[static_cast<size_t>(line.document)], line.item),
                        discounts[static_cast<size_t>(line.document)]});
    return sold;
}

// By item, then as the sales stand: by date and number.
void sort(std::vector<SoldLine>& sold, const DocumentLines& lines) {
    const std::vector<int> places = lines.items().places();
    std::ranges::stable_sort(sold, {}, [&](const SoldLine& each) {
        return std::pair(places[static_cast<size_t>(each.line.item)], each.line.document);
    });
}
}  // namespace

std::unique_ptr<ReportSource> soldLines(Connection& store, const std::optional<Period>& period) {
    const auto lines = std::make_shared<const DocumentLines>(store, DocumentLines::Side::Sales,
                                                             wherePeriod("RefDate", period));
    std::vector<SoldLine> sold = soldLines(store, *lines, period);
    if (sold.empty()) return nullptr;
    sort(sold, *lines);
    const auto names = std::make_shared<const std::vector<ItemNames>>(namesOf(store, lines->items()));
    using Rows = WorkedRows<SoldLine>;
    return std::make_unique<Rows>(
        std::move(sold),
        std::vector<Rows::Column>{
            {"ItemID", [lines](const SoldLine& sale) { return lines->item(sale.line.item); }},
            {"Served", [](const SoldLine& sale) { return sale.line.quantity; }},
            {"UnitPrice", [](const SoldLine& sale) { return sale.line.price; }},
            {"Discount", [](const SoldLine& sale) { return sale.line.discount; }},
            {"TotalAmount",
             [lines](const SoldLine& sale) { return lines->document(sale.line.document).total; }},
            {"Cost", [](const SoldLine& sale) { return sale.cost; }},
            {"Granted", [](const SoldLine& sale) { return sale.granted; }},
            {"RefNo", [lines](const SoldLine& sale) { return lines->number(sale.line.document); }},
            {"RefDate", [lines](const SoldLine& sale) { return lines->date(sale.line.document); }},
            {"Description", [names](const SoldLine& sale) {
                 return (*names)[static_cast<size_t>(sale.line.item)].description;
             }}});
}

Currency percentOfTotal(Currency discount, Currency total) {
    return perUnit(discount * Currency::fromInteger(100), total);
}

Currency perUnit(Currency amount, Currency quantity) {
    return quantity.isZero() ? Currency() : divide(amount, quantity);
}
