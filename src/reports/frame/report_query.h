#pragma once
#include "platform/store/connection.h"
#include "reports/frame/report_events.h"

#include <optional>

// A run of the report over the rows of this query; none when it finds no row.
std::optional<ReportJobParts> reportOfQuery(Connection& store, const ReportLayout& layout, const Sql& query,
                                            ReportEvents events = {}, RunTexts texts = {});
