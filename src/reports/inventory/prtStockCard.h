#pragma once
#include "books/keyed_figures.h"
#include "reports/frame/period_report.h"

// The movements of one item in the ledger, by date, purchases before sales, with their amounts.
const ReportLayout& prtStockCard();

// Its run for the request's item and period, costed anew; none when nothing moved. The value is that of the
// stock on hand at the end of the period. The number of statements does not grow with the rows.
std::optional<ReportJobParts> stockCardReport(Connection& store, const PrintRequest& request);

// What was charged for an item on each sale of the period, less the percent of the sale's first payment, by
// the sale's number: two statements.
KeyedFigures chargedOnSales(Connection& store, const QString& item, const std::optional<Period>& period);
