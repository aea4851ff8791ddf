#pragma once
#include "reports/frame/report_events.h"
#include "tools/search/search_query.h"

// The print-out of what a search finds; none when it finds nothing. The store must outlive the run.
std::optional<ReportJobParts> searchReport(Connection& store, const Search& search);
