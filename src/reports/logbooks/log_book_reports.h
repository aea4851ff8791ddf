#pragma once
#include "reports/frame/period_report.h"

// The log books: the statements of account of customers, or, for kind "P", what the firm bought from its
// suppliers and paid. Of all contacts, or of those of one name; the period is that of the documents, whose
// payments come whenever they were made.

// Why it cannot be printed: there is no such contact, or no such period.
std::optional<Fault> logBookFault(Connection& store, const PrintRequest& request);
// Its run; none when no document lies in the period. A request without fault. The number of statements does
// not grow with the rows.
std::optional<ReportJobParts> logBookReport(Connection& store, const PrintRequest& request);
