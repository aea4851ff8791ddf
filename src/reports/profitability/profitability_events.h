#pragma once
#include "reports/frame/period_report.h"

// The figures of the two profitability reports: what sales brought, less both kinds of discount, against
// their cost in the ledger. Those of sales are read before the run, by
// as many statements for one sale as for all; those of lines come with the rows (profitability_figures.h).
ReportEvents profitOfSales(Connection& store, const std::optional<Period>& period);
ReportEvents profitOfLines(Connection& store, const std::optional<Period>& period);
