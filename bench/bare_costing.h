#pragma once
#include "bench/bare_statement.h"

#include <span>
#include <string_view>
#include <vector>

// The costing of the bare passes: plain loops over rows in memory.
namespace bare {

struct Row {
    Count key;
    bool purchase;
    Count in, price, out, balance, cost, newBalance, newCost;
    int item = 0;
    int date = 0;
};

// "2026-01-31" as 20260131.
int dayOf(std::string_view date);
// The rows of one item, in their order.
void costRows(std::span<Row> rows);
// The rows of all items, whose order by key they keep.
void costLedger(std::vector<Row>& rows);

}  // namespace bare
