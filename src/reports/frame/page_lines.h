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

// In a fixed pitch: the condensed pitch of dot matrix printers, 120 characters to seven inches. The heads of
// the papers stand whole in it, and two controls that do not touch do not touch in it either.
inline constexpr int characterWidth = 84;
inline int columnAt(int place) { return place / characterWidth; }
// The columns of a control, at least one: from that of its left edge to that of its right edge.
int columnsOf(const PageItem& item);
