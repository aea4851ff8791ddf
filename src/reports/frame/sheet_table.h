#pragma once
#include "reports/frame/report_pages.h"

#include <vector>

// What a spreadsheet shows of a report: a column for each field of its lines under its head, a row for each
// line, rows for the headings and footers of its groups, and at the end what stands at the top of its pages.
// All texts are those of the pages. It points into the pages, and is good as long as they are.
struct SheetColumn {
    QString head;
    const ReportControl* control = nullptr;
};

struct SheetCell {
    int column;
    QString text;
    const ReportControl* control;  // whose text it is
};

struct SheetRow {
    int level = 0;         // how many groups it lies in
    bool isLine = false;   // of the report, or of one within it
    bool isTotal = false;  // of a footer
    std::vector<SheetCell> cells;
};

struct SheetTable {
    std::vector<SheetColumn> columns;  // cells may stand to the right of the last one
    std::vector<SheetRow> rows;
};

SheetTable sheetTable(const ReportPages& pages);
