#pragma once
#include "reports/frame/report_layout.h"

#include <QRect>
#include <vector>

// The pages of a report: what every output is made from. Rectangles are in twips from the paper's corner.
struct PageItem {
    ControlKind kind = ControlKind::Label;  // Label for any line of text, Line or Image
    QRect place;
    QString text;  // of an image: its file
    quint16 style = 0;
    bool isFigure = false;  // never shown in part
};

struct ReportPage {
    std::vector<PageItem> items;
};

struct ReportPages {
    QString caption;
    PageSetup setup;
    std::vector<TextStyle> styles;
    std::vector<ReportPage> pages;

    quint16 styleNumber(const TextStyle& style);
};
