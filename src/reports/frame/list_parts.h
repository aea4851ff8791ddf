#pragma once
#include "reports/frame/report_events.h"

// What list reports have in common.

// "Run Date :  " and the present moment.
QString runDateText();

// The page footer of a list report, with the page text at this place: "Page: 1 of  3".
ReportSection pageNumberFooter(int left);
// Its event. Each run needs one of its own: it counts the pages.
FormatEvent pageNumberEvent();
