#pragma once
#include "books/keyed_figures.h"
#include "reports/frame/period_report.h"

// What the profit of the sales of a period is reckoned with. No period: of all sales.

// The cost of each sale, by its number: one statement, however many sales.
KeyedFigures costsOfSales(Connection& store, const std::optional<Period>& period);
// The sold lines by item, date and number: those of the store's columns that the report shows, TotalAmount of
// the sale, Cost of the item in the sale (that of its first row in the ledger), and Granted, the discount in
// money that all payments of the sale were given. None: no line.
std::unique_ptr<ReportSource> soldLines(Connection& store, const std::optional<Period>& period);

// The percent that a discount is of a total; 0 of a total of 0.
Currency percentOfTotal(Currency discount, Currency total);
// Through double precision; 0 where there is no quantity.
Currency perUnit(Currency amount, Currency quantity);
