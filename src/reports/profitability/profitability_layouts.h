#pragma once
#include "reports/frame/report_layout.h"

// Their title comes with the run. One line for each sale.
const ReportLayout& prtProfitabilitySummary();
// One line for each sold line, grouped by item.
const ReportLayout& prtProfitabilityDetails();
