#pragma once
#include "reports/frame/period_report.h"

// What is still open by the balances of the documents: of customers, or of suppliers for kind "P"; each
// document with its due date, or for "optSummary" the sum of each contact. Contacts of one name are one row
// where their terms, telephone number and credit limit are the same, too.

// Its run; none when nothing is open. One statement, however many documents.
std::optional<ReportJobParts> outstandingReport(Connection& store, const PrintRequest& request);

QList<const ReportLayout*> outstandingLayouts();
