#pragma once
#include "reports/frame/period_report.h"

// What each customer bought in a period, by item.
const ReportLayout& prtSalesQuota();

// Why it cannot be printed: the contact, the item or the period that it is to be limited to is none.
std::optional<Fault> salesQuotaFault(Connection& store, const PrintRequest& request);
// Its run, of one contact and one item or of all; none when nothing was sold. A request without fault.
std::optional<ReportJobParts> salesQuotaReport(Connection& store, const PrintRequest& request);
