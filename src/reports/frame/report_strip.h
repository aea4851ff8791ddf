#pragma once
#include "reports/frame/section_formatter.h"

// A whole report within a control of another one, one band below the other: its heading, lines, groups and
// footers. Pages, with their numbers and footers, are those of the report around it.
FormattedSection stripOf(ReportJobParts& report, ReportPages& styles);
