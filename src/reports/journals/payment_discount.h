#pragma once
#include "books/keyed_figures.h"
#include "reports/frame/period_report.h"

// The discounts that payments took off sold lines: of each line its net price, less the percent of the first
// payment of its sale, times what was served. Two statements, however many lines.

// The condition that leaves the rows of the period's sales, behind " WHERE " or " AND "; empty for all days.
Sql ofSales(const char* before, const std::optional<Period>& period);
// By the number of the sale, for the sales of the period.
KeyedFigures discountsOfSales(Connection& store, const std::optional<Period>& period);
// By the code of the item, over all sales.
KeyedFigures discountsOfItems(Connection& store);
