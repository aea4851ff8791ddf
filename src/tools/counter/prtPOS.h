#pragma once
#include "reports/frame/report_events.h"
#include "tools/counter/cash_document.h"

// The audit of a day's collections on paper: the payments that were not cash by their status, and what the
// cash drawer should hold. The store must outlive the run.
ReportJobParts posReport(Connection& store, const CashAudit& audit, const CashAuditRequest& request);
