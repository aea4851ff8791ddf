#include "bench/bare_costing.h"

#include <algorithm>
#include <cstdlib>
#include <tuple>

namespace bare {
int dayOf(std::string_view date) {
    int day = 0;
    for (const char letter : date)
        if (letter != '-') day = day * 10 + (letter - '0');
    return day;
}

void costRows(std::span<Row> rows) {
    Count balance = 0;
    std::vector<std::pair<Count, Count>> layers;
    for (Row& row : rows) {
        row.newBalance = balance += row.purchase ? row.in : -std::abs(row.out);
        if (row.purchase) layers.emplace_back(row.in, row.price);
    }
    size_t oldest = 0;
    for (Row& row : rows) {
        row.newCost = row.purchase ? row.cost : 0;
        for (Count left = row.purchase ? 0 : row.out; left > 0 && oldest < layers.size();) {
            const Count taken = std::min(left, layers[oldest].first);
            row.newCost += product(taken, layers[oldest].second);
            left -= taken;
            if ((layers[oldest].first -= taken) <= 0) ++oldest;
        }
    }
}

void costLedger(std::vector<Row>& rows) {
    std::ranges::sort(rows, {},
                      [](const Row& row) { return std::tuple(row.item, row.date, !row.purchase, row.key); });
    for (auto first = rows.begin(); first != rows.end();) {
        const auto last =
            std::find_if(first, rows.end(), [&](const Row& row) { return row.item != first->item; });
        costRows({first, last});
        first = last;
    }
    std::ranges::sort(rows, {}, &Row::key);
}
}  // namespace bare
