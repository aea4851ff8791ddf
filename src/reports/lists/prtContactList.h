#pragma once
#include "platform/store/connection.h"
#include "reports/frame/report_events.h"

#include <optional>

// The contacts that the query lists ("SELECT tblContactMaster.*, ..."), with their two balances. count: a
// line about their number. None when it finds no contact. The store must outlive the run.
std::optional<ReportJobParts> contactListReport(Connection& store, const Sql& query, const QString& count);
