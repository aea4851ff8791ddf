#pragma once
#include "platform/box.h"
#include "platform/store/connection.h"

// Running balances and sales cost of one item in one scan, as the end of day wants them: a sales cost beyond
// the range adds its box, and the sales from there on keep theirs. Throws StoreError, and OverflowError for a
// balance beyond the range.
void ComputeItemCosts(Connection& store, const QString& itemCode, Boxes& boxes);
