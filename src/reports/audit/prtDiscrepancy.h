#pragma once
#include "reports/frame/report_events.h"

#include <optional>

class Connection;
class Progress;

// What the consistency checks find in the books, one below the other in a single text.
const ReportLayout& prtDiscrepancy();

// Runs the checks, each with its words in the progress box. A check that the store refuses is told in a box
// and shows its head alone. There is always a report.
std::optional<ReportJobParts> discrepancyReport(Connection& store, Progress& progress);
