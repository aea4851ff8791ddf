#include "reports/frame/list_report.h"

#include "foundation/shared_routines.h"
#include "platform/clock.h"
#include "platform/masks.h"

#include <algorithm>

namespace {
constexpr int edge = 90;
constexpr int textHeight = 225;
constexpr int lineHeight = 270;

struct Look {
    Qt::Alignment alignment;
    const char* mask;
};

Look lookOf(ReportColumn::Kind kind) {
    static const QHash<int, Look> looks{{ReportColumn::Text, {Qt::AlignLeft, nullptr}},
                                        {ReportColumn::Code, {Qt::AlignLeft, nullptr}},
                                        {ReportColumn::Centred, {Qt::AlignHCenter, nullptr}},
                                        {ReportColumn::Date, {Qt::AlignLeft, mask::date}},
                                        {ReportColumn::DateTime, {Qt::AlignLeft, mask::dateTime}},
                                        {ReportColumn::Count, {Qt::AlignRight, mask::count}},
                                        {ReportColumn::Number, {Qt::AlignRight, nullptr}},
                                        {ReportColumn::Amount, {Qt::AlignRight, mask::amount}},
                                        {ReportColumn::SignedAmount, {Qt::AlignRight, mask::signedAmount}},
                                        {ReportColumn::Price, {Qt::AlignRight, mask::price}},
                                        {ReportColumn::Percent, {Qt::AlignRight, "0.00##"}}};
    return looks[kind];
}

TextStyle styleOf(const ReportColumn& column, bool isBold) {
    return {Typeface::Verdana, 8, isBold, lookOf(column.kind).alignment};
}

bool isComputed(const ReportColumn& column) { return QString(column.column).startsWith("txt"); }
QString baseName(const ReportColumn& column) {
    return QString(column.column).mid(isComputed(column) ? 3 : 0);
}

ReportControl lineOf(const ReportColumn& column) {
    const ReportControl control =
        field("txt" + baseName(column), isComputed(column) ? "" : column.column, column.left, 30,
              column.width, textHeight, styleOf(column, false), lookOf(column.kind).mask);
    if (column.kind == ReportColumn::Code) return whole(control);
    return column.kind == ReportColumn::Text ? growing(control) : control;
}

// A head of one line that is wider than its column is drawn in narrower letters.
ReportControl headOf(const ListReport& list, const ReportColumn& column) {
    const ReportControl head = label("lbl" + baseName(column), column.head, column.left, list.headsTop,
                                     column.width, list.heights.heads, styleOf(column, true));
    return list.heights.heads > textHeight ? head : whole(head);
}

ReportSection heading(const ListReport& list) {
    QList<ReportControl> controls = list.heading;
    for (qsizetype i = 0; i < controls.size(); ++i) {
        controls[i].left = edge;
        controls[i].top = edge + static_cast<int>(i) * lineHeight;
        controls[i].width = list.page.printWidth - edge - 60;
    }
    for (const ReportColumn& column : list.columns) controls += headOf(list, column);
    controls += list.beside;
    const int height = list.heights.heading;
    return section(SectionKind::PageHeader, height ? height : list.headsTop + list.heights.heads + 45,
                   controls);
}

ReportSection line(const ListReport& list) {
    QList<ReportControl> controls;
    for (const ReportColumn& column : list.columns) {
        controls += lineOf(column);
        if (column.kind == ReportColumn::Percent)
            controls += label("lbl" + baseName(column) + "Sign", "%", column.left + column.width + 30, 30,
                              240, textHeight);
    }
    return section(SectionKind::Detail, list.heights.line, controls);
}

ReportControl totalWords(const ListReport& list, const char* words, const ReportColumn& first) {
    if (list.totalLeft)
        return label("lblTotal", words, list.totalLeft, edge, first.left - list.totalLeft, textHeight,
                     bold());
    return label("lblTotal", words, first.left - 1710, edge, 1620, textHeight,
                 {Typeface::Verdana, 8, true, Qt::AlignRight});
}

// One line of sums; empty where no column has one.
QList<ReportControl> totals(const ListReport& list, const char* words, const char* ReportColumn::*total) {
    QList<ReportControl> controls;
    for (const ReportColumn& column : list.columns) {
        if (!(column.*total)) continue;
        if (controls.isEmpty()) controls += totalWords(list, words, column);
        controls += summing(field(column.*total, "txt" + baseName(column), column.left, edge, column.width,
                                  textHeight, styleOf(column, true), lookOf(column.kind).mask));
    }
    return controls;
}

QList<ReportSection> group(const ListReport& list) {
    if (!list.group) return {};
    QList<ReportSection> sections{
        groupHeader(SectionKind::GroupHeader1, list.group->column, lineHeight + 15, list.group->heading)};
    if (const auto sums = totals(list, list.group->total, &ReportColumn::subTotal); !sums.isEmpty())
        sections += section(SectionKind::GroupFooter1, 405, sums);
    return sections;
}

ReportControl headingLine(const char* name, const char* text, const TextStyle& style = {}) {
    return label(name, text, 0, 0, 0, style.isBold ? lineHeight : textHeight, style);
}

ReportControl ownLine(const char* name, Shows what) {
    return showing(what, field(name, "", 0, 0, 0, textHeight));
}
}  // namespace

ReportLayout listLayout(const ListReport& list) {
    QList<ReportSection> sections{heading(list), line(list), pageFooter(list.foot)};
    sections.last().height = list.heights.pageFooter;
    if (const auto sums = totals(list, list.total, &ReportColumn::total); !sums.isEmpty())
        sections += section(SectionKind::ReportFooter, list.heights.total, sums);
    sections += group(list);
    return {list.name, list.caption, list.page, sections};
}

ReportSection pageFooter(const QList<ReportControl>& more) {
    return section(SectionKind::PageFooter, 360,
                   QList{label("lblPage", "Page:", edge, 90, 540, textHeight),
                         showing(Shows::PageText, field("fldPageNo", "", edge + 540, 90, 1620, textHeight))} +
                       more);
}

ReportControl companyLine() { return headingLine("lblCompany", "", bold(10)); }
ReportControl addressLine() { return headingLine("lblAddress", ""); }
ReportControl phoneLine() { return headingLine("lblTelNo", ""); }
ReportControl titleLine(const char* title) { return headingLine("lblTitle", title, bold()); }
ReportControl runDateLine() { return ownLine("lblRunDate", Shows::RunDate); }
ReportControl rangeLine() { return ownLine("lblRange", Shows::Range); }

QList<ReportControl> companyBlock(int top, int logoHeight) {
    constexpr int left = 1530, width = 9000;
    return {image("imgCheck", edge, top, 1350, logoHeight),
            growing(label("lblCompany", "", left, top, width, lineHeight, bold(10))),
            growing(label("lblAddress", "", left, top + lineHeight, width, textHeight)),
            growing(label("lblTelNo", "", left, top + 2 * lineHeight, width, textHeight))};
}

QList<ReportControl> recordsLine(int top) {
    return {label("lblRecords", "No. of Records = ", edge, top, 1530, textHeight),
            showing(Shows::RecordCount,
                    field("lblNoRecords", "", edge + 1530, top, 900, textHeight, {}, mask::count))};
}

ReportControl countLine(int printWidth) {
    return label("lblCount", "", printWidth / 2, edge + 4 * lineHeight, printWidth / 2 - edge, textHeight,
                 rightAligned());
}

QString runDateText() { return "Run Date :  " + formatDateTime(Clock::now()); }

RunTexts companyTexts(Connection& store) {
    return {.labels = {{"lblCompany", GetCompanyName(store)},
                       {"lblAddress", GetCompanyAddress(store)},
                       {"lblTelNo", GetCompanyTelNo(store)},
                       {"imgCheck", GetCompanyLogo(store)}}};
}
