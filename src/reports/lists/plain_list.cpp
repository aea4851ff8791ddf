#include "reports/lists/plain_list.h"

#include "foundation/shared_routines.h"
#include "platform/clock.h"
#include "platform/masks.h"

namespace plainList {

static TextStyle styleOf(const Column& column, bool isBold) {
    return {Typeface::Verdana, 8, isBold, column.isRight ? Qt::AlignRight : Qt::AlignLeft};
}

static ReportControl lineOf(const Column& column) {
    const ReportControl made = field(QString("txt") + column.name, column.column, column.left, 30,
                                     column.width, 225, styleOf(column, false), column.mask);
    return column.isRight || column.mask ? made : growing(made);
}

QList<ReportSection> sections(const QString& title, int width, const QList<Column>& columns) {
    const int text = width - 180;
    QList<ReportControl> head{label("lblCompany", "", 90, 90, text, 270, bold(10)),
                              label("lblTitle", title, 90, 360, text, 270, bold()),
                              label("lblAddress", "", 90, 630, text, 225),
                              label("lblTelNo", "", 90, 900, text, 225),
                              label("lblRunDate", "", 90, 1170, text / 2, 225),
                              label("lblCount", "", text / 2, 1170, text / 2 + 90, 225, rightAligned())};
    QList<ReportControl> line;
    for (const Column& column : columns) {
        head += label(QString("lbl") + column.name, column.head, column.left, 1620, column.width, 225,
                      styleOf(column, true));
        line += lineOf(column);
    }
    return {section(SectionKind::PageHeader, 1890, head), section(SectionKind::Detail, 285, line)};
}

FormatEvent headingEvent(Connection& store, const QString& count, const QString& title) {
    return [&store, count, title](const ReportSource&, SectionFields& fields) {
        fields.setText("lblCompany", GetCompanyName(store));
        fields.setText("lblAddress", GetCompanyAddress(store));
        fields.setText("lblTelNo", GetCompanyTelNo(store));
        fields.setText("lblRunDate", "Run Date :  " + formatDateTime(Clock::now()));
        fields.setText("lblCount", count);
        if (!title.isEmpty()) fields.setText("lblTitle", title);
    };
}

}  // namespace plainList
