#pragma once
#include "reports/frame/report_layout.h"

#include <QHash>
#include <QRect>
#include <utility>
#include <vector>

// The pages of a report: what every output is made from. Rectangles are in twips from the paper's corner.
struct PageItem {
    ControlKind kind = ControlKind::Label;  // Label for any line of text, Line, Image or BarCode
    QRect place;
    QString text;  // of an image: its file
    quint16 style = 0;
    bool isFigure = false;     // never shown in part
    quint32 control : 10 = 0;  // in ReportPages::controls
    // The number of the printed section that it belongs to: they rise as the report is read. 0: none, or
    // printed once more at the top of a page.
    quint32 band : 22 = 0;
    static constexpr quint32 mostBands = (1 << 22) - 1;
};

// A control that stands on the pages, and where it belongs.
struct PageControl {
    SectionKind section = SectionKind::Detail;
    ReportControl control;
    int depth = 0;  // 1: of a report within a control of the report
};

struct ReportPage {
    std::vector<PageItem> items;
};

struct ReportPages {
    QString caption;
    PageSetup setup;
    std::vector<TextStyle> styles;
    std::vector<ReportPage> pages;
    std::vector<PageControl> controls = {};
    QHash<quint64, QString> wholeTexts = {};  // of texts that were broken into lines, by textKey
    quint32 bands = 0;
    int depth = 0;  // of the report that is being laid out
    std::vector<std::pair<const ReportControl*, quint16>> firstControls = {};  // of the sections so far

    quint16 styleNumber(const TextStyle& style);
    // The number of a section's first control; the others follow it.
    quint16 controlsOf(const ReportSection& section);
    static quint64 textKey(quint32 band, quint16 control) { return quint64(band) << 16 | control; }
};
