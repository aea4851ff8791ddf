#pragma once
#include "reports/frame/report_events.h"
#include "reports/frame/report_pages.h"

// A part of a section from one height to another.
struct Span {
    int top, bottom;
};

// A section made ready for a page: its items, from its own corner, and the height that they take.
struct FormattedSection {
    int height = 0;
    std::vector<PageItem> items;
    std::vector<Span> wholes;               // what no page break divides, as far as a page has room for it
    int lastRow = 0;                        // where the last line of a report within it begins
    std::vector<std::size_t> withoutCount;  // items whose text waits for the number of pages
    bool startsPages = false;               // a heading that goes on a new page
};

// The height of a cut, moved up until it divides nothing that is whole.
int besideWholes(const FormattedSection& section, int cut);

// Stands in a text for the number of pages while it is not known: the text of a heading. It is drawn as
// nothing.
inline constexpr QChar laterText(0x200B);

// Lays out the fields as their section's event has left them, and what grows.
FormattedSection layOut(const ReportSection& section, SectionFields& fields, ReportPages& styles);

// A number or a date through a mask; without one a number in plain digits.
QString figureText(Currency figure, const char* mask);
// A bound value through its mask; a null is an empty text.
QString fieldText(const ReportSource& row, const QString& column, const char* mask);
