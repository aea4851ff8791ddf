#pragma once
#include "reports/frame/report_events.h"

class Connection;

// What the plain lists of records have in common: a heading with the firm, the title and the number of
// records, and one line for each record.
namespace plainList {

struct Column {
    const char* head;
    int left;
    int width;
    const char* name;    // of the controls: lblName, txtName
    const char* column;  // of the rows; empty: the report's event fills it
    const char* mask = nullptr;
    bool isRight = false;
};

QList<ReportSection> sections(const QString& title, int width, const QList<Column>& columns);
// The heading's texts; title: instead of the layout's, when it is not empty.
FormatEvent headingEvent(Connection& store, const QString& count, const QString& title = {});

}  // namespace plainList
