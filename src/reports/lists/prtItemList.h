#pragma once
#include "platform/store/connection.h"
#include "reports/frame/report_events.h"

#include <optional>

// The items that the query lists ("SELECT tblItemMaster.*, ..."), with the value of their stock. count: a
// line about their number. None when it finds no item. The store must outlive the run.
std::optional<ReportJobParts> itemListReport(Connection& store, const Sql& query, const QString& count);
