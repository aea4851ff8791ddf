#pragma once
#include "reports/frame/period_report.h"

// The figures of the two profitability reports: what sales brought, less both kinds of discount, against
// their cost in the ledger. Read before the run, by as many statements for one sale as for all.
ReportEvents profitOfSales(Connection& store, const std::optional<Period>& period);
ReportEvents profitOfLines(Connection& store, const std::optional<Period>& period);
