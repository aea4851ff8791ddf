#pragma once
#include "reports/frame/report_events.h"

#include <QStringList>

// The lines of a report as they stand on its pages: the texts that begin at these places, in twips from the
// left margin, of each line that has a text at all of them. The heads above the columns are left out.
QList<QStringList> printedRows(ReportJobParts& report, const QList<int>& lefts);
