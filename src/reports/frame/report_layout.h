#pragma once
#include <QHash>
#include <QList>
#include <QSize>
#include <QString>
#include <Qt>
#include <optional>

// The layout of a report: its page and its sections with their controls, as data. Geometry is in twips, 1,440
// to the inch, from the left margin and from the top of the section. A report declares its layout in one
// place, as a table:
//
//     const ReportLayout layout{"prtReorder", "Inventory Reorder Report...", letterPortrait(750, 750, 10680),
//         {section(SectionKind::PageHeader, 1350,
//                  {label("lblTitle", "Item Re-Order Report", 90, 360, 4000, 270, bold(10))}),
//          section(SectionKind::Detail, 270,
//                  {field("txtBalance", "Balance", 7200, 0, 1080, 225, rightAligned(), mask::amount)})}};

enum class SectionKind {
    ReportHeader,
    PageHeader,
    GroupHeader1,
    GroupHeader2,
    Detail,
    GroupFooter2,
    GroupFooter1,
    PageFooter,
    ReportFooter
};

enum class ControlKind { Label, Field, Line, Image, BarCode, SubReport };

enum class Typeface { Verdana, Tahoma, Arial, TimesNewRoman };

// How a control's text looks.
struct TextStyle {
    Typeface face = Typeface::Verdana;
    int points = 8;
    bool isBold = false;
    Qt::Alignment alignment = Qt::AlignLeft;
    bool operator==(const TextStyle&) const = default;
};

inline TextStyle bold(int points = 8) { return {Typeface::Verdana, points, true, Qt::AlignLeft}; }
inline TextStyle rightAligned(int points = 8) { return {Typeface::Verdana, points, false, Qt::AlignRight}; }
inline TextStyle centred(int points = 8) { return {Typeface::Verdana, points, false, Qt::AlignHCenter}; }

// What a field shows: its column, or what the frame knows by itself. Sums and counts run over the group whose
// footer holds the field, or over the whole report in the report footer; a sum is that of a column, or of the
// figures of a field of the detail line, or of a group's heading, which counts once for each group. What
// needs the number of pages is there when the last one is.
enum class Shows {
    Column,
    Sum,
    Count,
    PageNumber,
    PageCount,
    PageText,     // "2 of  3"
    PageOfPages,  // "Page 2 of 3"; nothing on a paper of one page, whose foot then belongs to its last
                  // section
    RecordCount,  // of all rows of the report
    RunDate,      // "Run Date :  " and the present moment
    Range         // of the rows, as the run was started with; the run date when they are all
};

namespace reportOutput {
// Dots for a matrix printer: fixed pitch, no pictures, no fine lines.
enum class Rendering { Full, DotMatrix };
}  // namespace reportOutput

struct ReportControl {
    ControlKind kind = ControlKind::Label;
    QString name;
    QString text;    // of a label
    QString column;  // of a bound field; empty: set by the report's events
    int left = 0, top = 0, width = 0, height = 0;
    TextStyle style;
    const char* mask =
        nullptr;           // of a number or a date; null: the text as it stands, a number in plain digits
    bool grows = false;    // takes as many lines as its text needs, and moves what stands below it
    bool isWhole = false;  // never shown in part: drawn in narrower letters, and then in several lines
    Shows shows = Shows::Column;
};

struct ReportSection {
    SectionKind kind = SectionKind::Detail;
    int height = 0;  // 0 prints nothing
    QList<ReportControl> controls;
    QString groupColumn;       // of a group header: a new value begins a new group
    bool repeats = false;      // of a group header: again at the top of each page that its group runs on to
    bool startsPages = false;  // of a group header: each group has pages of its own, counted from 1
};

struct PageSetup {
    int paperWidth = 12240, paperHeight = 15840;  // as it lies
    int left = 0, right = 0, top = 750, bottom = 750;
    int printWidth = 0;
    bool isPrinters = false;  // the paper is what the printer holds; letter stands where there is no printer
    QSize paper() const { return {paperWidth, paperHeight}; }
};

inline PageSetup letterPortrait(int left, int right, int printWidth) {
    return {12240, 15840, left, right, 750, 750, printWidth};
}
inline PageSetup letterLandscape(int left, int right, int printWidth) {
    return {15840, 12240, left, right, 750, 750, printWidth};
}
inline PageSetup legalLandscape(int left, int right, int printWidth) {
    return {20160, 12240, left, right, 750, 750, printWidth};
}

inline PageSetup printersPaper(int margin, int printWidth) {
    return {12240, 15840, margin, margin, margin, margin, printWidth, true};
}

struct ReportLayout {
    QString name;     // "prtDelivery"
    QString caption;  // of the preview
    PageSetup page;
    QList<ReportSection> sections;
    std::optional<reportOutput::Rendering> rendering = {};  // whatever the session prints in

    const ReportSection* section(SectionKind kind) const;  // null when it has none
};

inline ReportSection section(SectionKind kind, int height, QList<ReportControl> controls) {
    return {kind, height, std::move(controls), {}, false};
}
inline ReportSection groupHeader(SectionKind kind, const QString& column, int height,
                                 QList<ReportControl> controls, bool repeats = true) {
    return {kind, height, std::move(controls), column, repeats};
}

inline ReportSection startingPages(ReportSection header) {
    header.startsPages = true;
    return header;
}

ReportControl label(const QString& name, const QString& text, int left, int top, int width, int height,
                    const TextStyle& style = {});
ReportControl field(const QString& name, const QString& column, int left, int top, int width, int height,
                    const TextStyle& style = {}, const char* mask = nullptr);
ReportControl growing(ReportControl control);
ReportControl whole(ReportControl control);
ReportControl showing(Shows what, ReportControl control);
inline ReportControl summing(ReportControl control) { return showing(Shows::Sum, std::move(control)); }
ReportControl line(const QString& name, int left, int top, int width, int height = 0);
ReportControl image(const QString& name, int left, int top, int width, int height);
// Its text becomes bars; what has no room, or no such characters, is not for it (platform/print/bar_code.h).
ReportControl bars(const QString& name, int left, int top, int width, int height);
ReportControl subReport(const QString& name, int left, int top, int width, int height = 0);

// "Page 2 of 3" at the foot of a paper that has more than one page.
ReportSection pageOfPagesFooter(const PageSetup& page);
