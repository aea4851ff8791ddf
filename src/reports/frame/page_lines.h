#pragma once
#include "reports/frame/report_pages.h"

// A page as it is read: line by line. For outputs that are made of text and not painted.
struct PageLine {
    int top = 0;  // in twips from the paper's top
    std::vector<const PageItem*>
        items;  // texts, or rules, never both: a rule is no sign of the figure under it
    bool isRule() const { return items.front()->kind == ControlKind::Line; }
};

// The lines of a page from the top, without pictures and upright rules. The items point into the page.
std::vector<PageLine> linesOf(const ReportPage& page);

// In a fixed pitch, fifteen characters to the inch: an amount of the narrowest column keeps all its digits.
inline constexpr int characterWidth = 96;
// The characters that a control has room for in a fixed pitch, at least one.
int columnsOf(const PageItem& item);
