#pragma once
#include "reports/frame/report_layout.h"

#include <QDateTime>
#include <variant>

// A text of a page as a cell holds it: a number or a moment, with the mask that shows it as that very text,
// or the text itself. What a cell would show otherwise, because it holds fifteen digits and no day before
// 1900, stays a text.
struct SheetValue {
    std::variant<QString, double, QDateTime> value;
    QString mask = {};  // of a number or a moment
};

SheetValue sheetValue(const QString& text, const ReportControl& control);
