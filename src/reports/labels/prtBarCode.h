#pragma once
#include "reports/frame/report_events.h"

#include <QStringList>
#include <optional>

class Connection;

// Labels with bar codes, seven side by side on label stock.
const ReportLayout& prtBarCode();

// The run over one label for each of these items, in their order, which then stand in tblTemp; none when
// there is none. An item that is not there any more has a label with its code alone.
std::optional<ReportJobParts> barCodeReport(Connection& store, const QStringList& itemCodes);
