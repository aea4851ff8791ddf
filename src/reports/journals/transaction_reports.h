#pragma once
#include "reports/frame/period_report.h"

// The period reports of the four journals: sales "S", receipts "R", purchases "P" and disbursements "D", and
// of the profit of sales "PROFIT", each as "optSummary" or "optDetailed".

// What keeps this report from being printed.
std::optional<Fault> transactionFault(Connection&, const PrintRequest& request);
// Its run; none when no document lies in the period. The number of statements does not grow with the rows.
std::optional<ReportJobParts> transactionReport(Connection& store, const PrintRequest& request);

// All layouts of these reports.
QList<const ReportLayout*> transactionLayouts();
