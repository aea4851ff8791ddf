#pragma once
#include "reports/frame/report_events.h"

#include <functional>
#include <optional>
#include <vector>

class Connection;

// Every report that the program has, as it is asked for in the demo firm. A new report is a new row.
struct KnownReport {
    QString name;
    std::function<std::optional<ReportJobParts>(Connection&)> make;
};
std::vector<KnownReport> everyReport();
