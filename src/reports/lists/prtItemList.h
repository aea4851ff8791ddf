#pragma once
#include "platform/store/connection.h"
#include "reports/frame/report_events.h"

#include <optional>

const ReportLayout& prtItemList();

// The items that the query lists ("SELECT tblItemMaster.*, ..."), with the value of their stock, read in one
// pass over the ledger. count: a line about their number. None when it finds no item.
std::optional<ReportJobParts> itemListReport(Connection& store, const Sql& query, const QString& count = {});
