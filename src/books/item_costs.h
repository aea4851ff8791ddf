#pragma once
#include "books/costing.h"
#include "platform/box.h"
#include "platform/store/connection.h"

#include <functional>

// What the progress box says of an item, followed by its description.
inline constexpr const char* balanceText = "System is Computing Inventory Balance for ";
inline constexpr const char* salesCostText = "System is Computing Sales Cost for ";

// Running balances and sales cost of one item in one scan, as the end of day wants them; tell is called with
// the text of each. A sales cost beyond the range adds its box, and the sales from there on keep theirs.
// Throws StoreError, and OverflowError for a balance beyond the range: within a unit of its caller, which is
// given up then. What it asks of the store can be read ahead.
Sql itemLedgerQuery(const QString& itemCode);
void ComputeItemCosts(Connection& store, const QString& itemCode,
                      const std::function<void(const char* text)>& tell, Boxes& boxes);

// Both figures, where one beyond the range ends its own pass over the item, not the other one; and the same
// for an item in the store.
void costPassingOver(ItemCosting& item);
void RecomputeItemCosts(Connection& store, const QString& itemCode);
