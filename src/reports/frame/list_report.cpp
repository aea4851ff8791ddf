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
                                        {ReportColumn::Centred, {Qt::AlignHCenter, nullptr}},
                                        {ReportColumn::Date, {Qt::AlignLeft, mask::date}},
                                        {ReportColumn::DateTime, {Qt::AlignLeft, mask::dateTime}},
                                        {ReportColumn::Count, {Qt::AlignRight, mask::count}},
                                        {ReportColumn::Number, {Qt::AlignRight, nullptr}},
                                        {ReportColumn::Amount, {Qt::AlignRight, mask::amount}},
                                        {ReportColumn::SignedAmount, {Qt::AlignRight, mask::signedAmount}},
                                        {ReportColumn::Price, {Qt::AlignRight, mask::price}}};
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
    return column.kind == ReportColumn::Text ? growing(control) : control;
}

ReportSection heading(const ListReport& list) {
    QList<ReportControl> controls = list.heading;
    for (qsizetype i = 0; i < controls.size(); ++i) {
        controls[i].left = edge;
        controls[i].top = edge + static_cast<int>(i) * lineHeight;
        controls[i].width = list.page.printWidth - edge - 60;
    }
    for (const ReportColumn& column : list.columns)
        controls += label("lbl" + baseName(column), column.head, column.left, list.headsTop, column.width,
                          textHeight, styleOf(column, true));
    return section(SectionKind::PageHeader, list.headsTop + lineHeight, controls);
}

ReportSection line(const ListReport& list) {
    QList<ReportControl> controls;
    for (const ReportColumn& column : list.columns) controls += lineOf(column);
    return section(SectionKind::Detail, lineHeight + 15, controls);
}

// Empty where no column is totalled.
QList<ReportControl> totals(const ListReport& list) {
    QList<ReportControl> controls;
    for (const ReportColumn& column : list.columns) {
        if (!column.total) continue;
        if (controls.isEmpty())
            controls += label("lblTotal", list.total, column.left - 1710, edge, 1620, textHeight,
                              {Typeface::Verdana, 8, true, Qt::AlignRight});
        controls += summing(field(column.total, "txt" + baseName(column), column.left, edge, column.width,
                                  textHeight, styleOf(column, true), lookOf(column.kind).mask));
    }
    return controls;
}

ReportSection pageFooter(const ListReport& list) {
    return section(SectionKind::PageFooter, 360,
                   QList{label("lblPage", "Page:", edge, 90, 540, textHeight),
                         showing(Shows::PageText, field("fldPageNo", "", edge + 540, 90, 1620, textHeight))} +
                       list.foot);
}

ReportControl headingLine(const char* name, const char* text, const TextStyle& style = {}) {
    return label(name, text, 0, 0, 0, style.isBold ? lineHeight : textHeight, style);
}

ReportControl ownLine(const char* name, Shows what) {
    return showing(what, field(name, "", 0, 0, 0, textHeight));
}
}  // namespace

ReportLayout listLayout(const ListReport& list) {
    QList<ReportSection> sections{heading(list), line(list), pageFooter(list)};
    if (const QList<ReportControl> sums = totals(list); !sums.isEmpty())
        sections += section(SectionKind::ReportFooter, 360, sums);
    return {list.name, list.caption, list.page, sections};
}

ReportControl companyLine() { return headingLine("lblCompany", "", bold(10)); }
ReportControl addressLine() { return headingLine("lblAddress", ""); }
ReportControl phoneLine() { return headingLine("lblTelNo", ""); }
ReportControl titleLine(const char* title) { return headingLine("lblTitle", title, bold()); }
ReportControl runDateLine() { return ownLine("lblRunDate", Shows::RunDate); }
ReportControl rangeLine() { return ownLine("lblRange", Shows::Range); }

QString runDateText() { return "Run Date :  " + formatDateTime(Clock::now()); }

RunTexts companyTexts(Connection& store) {
    return {.labels = {{"lblCompany", GetCompanyName(store)},
                       {"lblAddress", GetCompanyAddress(store)},
                       {"lblTelNo", GetCompanyTelNo(store)},
                       {"imgCheck", GetCompanyLogo(store)}}};
}
