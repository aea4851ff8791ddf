#pragma once
#include "reports/frame/period_report.h"
#include "reports/journals/document_lines.h"

// The lines of the documents of a period summed up by item and unit: ItemID, Unit, Description, SumQty and
// SumTotal, in the order of item and unit. Items that the master does not have are left out. None: no line.
std::unique_ptr<ReportSource> sumsOfItems(Connection& store, DocumentLines::Side side, const Sql& documents);
