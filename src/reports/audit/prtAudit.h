#pragma once
#include "reports/frame/period_report.h"

// The audit trail: who last changed each record of a book in a period.
const ReportLayout& prtAudit();

// The books that can be audited, by the words of the choice: "Audit Sales Journal".
QStringList auditedBooks();

// Why this audit cannot be printed.
std::optional<Fault> auditFault(Connection&, const PrintRequest& request);
// Its run; none when nothing was changed in the period. A request without fault.
std::optional<ReportJobParts> auditReport(Connection& store, const PrintRequest& request);
