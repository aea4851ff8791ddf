#pragma once
#include "platform/store/sql.h"
#include "reports/frame/report_events.h"

#include <optional>

class Connection;

// The items below their order level, by description.
const ReportLayout& prtReorder();

// The rows of the report, and of the screen that shows the same list.
Sql itemsToReorder();
// The run of the report; none when no item is below its level. The store must outlive the run.
std::optional<ReportJobParts> reorderReport(Connection& store);
