#pragma once
#include "reports/frame/report_events.h"
#include "reports/frame/report_pages.h"

// A section made ready for a page: its items, from its own corner, and the height that they take.
struct FormattedSection {
    int height = 0;
    std::vector<PageItem> items;
    bool isEmpty() const { return height == 0 && items.empty(); }
};

// The text of a summary field of the section that is being formatted.
using SummaryText = std::function<QString(const ReportControl& field)>;

// Fills the bound fields, runs the section's event, and lays out what grows.
FormattedSection formatSection(const ReportSection& section, const ReportSource& row,
                               const ReportEvents& events, const SummaryText& summary, ReportPages& styles);

// A bound value through its mask; a null is an empty text.
QString fieldText(const ReportSource& row, const QString& column, const char* mask);
