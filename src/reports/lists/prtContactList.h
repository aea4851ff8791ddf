#pragma once
#include "platform/store/connection.h"
#include "reports/frame/report_events.h"

#include <optional>

const ReportLayout& prtContactList();

// The contacts that the query lists ("SELECT tblContactMaster.*, ..."), with their two balances, read by one
// statement each. count: a line about their number. None when it finds no contact.
std::optional<ReportJobParts> contactListReport(Connection& store, const Sql& query, const QString& count);
