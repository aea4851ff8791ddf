#include "reports/journals/item_sums.h"

#include "reports/frame/worked_rows.h"

#include <algorithm>

namespace {
struct ItemSum {
    int item, unit;
    Currency quantity = {}, total = {};
};

// An item has few units: what it has is looked through.
std::vector<ItemSum> sumsOf(const DocumentLines& lines, const std::vector<ItemNames>& names) {
    std::vector<ItemSum> sums;
    std::vector<std::vector<size_t>> ofItem(names.size());
    for (const DocumentLines::Line& line : lines.lines()) {
        if (!names[static_cast<size_t>(line.item)].isKnown) continue;
        std::vector<size_t>& places = ofItem[static_cast<size_t>(line.item)];
        auto place = std::ranges::find_if(places, [&](size_t sum) { return sums[sum].unit == line.unit; });
        if (place == places.end()) {
            place = places.insert(places.end(), sums.size());
            sums.push_back({line.item, line.unit});
        }
        sums[*place].quantity += line.quantity;
        sums[*place].total += line.total;
    }
    return sums;
}

void sort(std::vector<ItemSum>& sums, const DocumentLines& lines) {
    const std::vector<int> items = lines.items().places(), units = lines.units().places();
    std::ranges::sort(sums, {}, [&](const ItemSum& sum) {
        return std::pair(items[static_cast<size_t>(sum.item)], units[static_cast<size_t>(sum.unit)]);
    });
}
}  // namespace

std::unique_ptr<ReportSource> sumsOfItems(Connection& store, DocumentLines::Side side, const Sql& documents) {
    const auto lines = std::make_shared<const DocumentLines>(store, side, documents);
    const auto names = std::make_shared<const std::vector<ItemNames>>(namesOf(store, lines->items()));
    std::vector<ItemSum> sums = sumsOf(*lines, *names);
    if (sums.empty()) return nullptr;
    sort(sums, *lines);
    using Rows = WorkedRows<ItemSum>;
    return std::make_unique<Rows>(
        std::move(sums),
        std::vector<Rows::Column>{
            {"ItemID", [lines](const ItemSum& sum) { return lines->item(sum.item); }},
            {"Unit", [lines](const ItemSum& sum) { return lines->unit(sum.unit); }},
            {"Description",
             [names](const ItemSum& sum) { return (*names)[static_cast<size_t>(sum.item)].description; }},
            {"SumQty", [](const ItemSum& sum) { return sum.quantity; }},
            {"SumTotal", [](const ItemSum& sum) { return sum.total; }}});
}
