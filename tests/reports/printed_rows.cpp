#include "reports/printed_rows.h"

#include "reports/frame/report_run.h"

#include <QMap>

namespace {
QStringList textsAt(const QMap<int, QString>& line, const QList<int>& lefts) {
    QStringList texts;
    for (const int left : lefts)
        if (line.contains(left)) texts += line[left];
    return texts.size() == lefts.size() ? texts : QStringList();
}
}  // namespace

QList<QStringList> printedRows(ReportJobParts& report, const QList<int>& lefts) {
    const int body = report.layout.page.top + report.layout.section(SectionKind::PageHeader)->height;
    const ReportPages pages = runReport(report);
    QList<QStringList> rows;
    for (const ReportPage& page : pages.pages) {
        QMap<int, QMap<int, QString>> lines;
        for (const PageItem& item : page.items)
            if (item.kind == ControlKind::Label && item.place.top() >= body)
                lines[item.place.top()].insert(item.place.left() - pages.setup.left, item.text);
        for (const auto& line : lines)
            if (const QStringList texts = textsAt(line, lefts); !texts.isEmpty()) rows += texts;
    }
    return rows;
}
