#pragma once
#include "reports/frame/report_events.h"

#include <optional>

struct Tape;

// The paper tape of the adding machine, a line each, those with a minus in bold letters. None for an empty
// tape. The run keeps the lines that it began with.
std::optional<ReportJobParts> tapeReport(const Tape& tape);
