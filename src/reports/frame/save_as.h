#pragma once
#include "reports/frame/export_file.h"
#include "reports/frame/report_pages.h"

#include <QWidget>

// What a report is called as a file, without an ending: its title, and the number of a document behind it.
QString proposedName(const ReportPages& pages);

// Asks for the file to save a report to, this kind first and the others to choose from, and writes it, whole
// or not at all. A name with the ending of another kind is of that kind. A box tells what went wrong.
void saveReportAs(QWidget* parent, const QString& title, const FileKind& kind, const ReportJob& job);
