#include "reports/frame/period_report.h"

#include "platform/masks.h"
#include "platform/parsing.h"
#include "reports/frame/list_report.h"
#include "reports/frame/report_query.h"

#include <QDateTime>

std::optional<Period> periodOf(const PrintRequest& request) {
    if (request.allDays) return {};
    const auto from = parseDate(request.from);
    const auto to = parseDate(request.to);
    if (!from || !to) return {};
    return Period{*from, *to};
}

std::optional<Fault> periodFault(const PrintRequest& request, const char* invalidDate) {
    if (request.allDays || periodOf(request)) return {};
    return errorFault(invalidDate, isDate(request.from) ? "txtTo" : "txtFrom");
}

Sql inPeriod(const QString& dateColumn, const std::optional<Period>& period) {
    if (!period) return {};
    return {dateColumn + " BETWEEN ? AND ?", {period->from, QDateTime(period->to, QTime(0, 0), Qt::UTC)}};
}

Sql wherePeriod(const QString& dateColumn, const std::optional<Period>& period) {
    return whereAll({inPeriod(dateColumn, period)});
}

Sql whereAll(const QList<Sql>& conditions) {
    Sql where;
    for (const Sql& condition : conditions)
        if (!condition.isEmpty())
            where += Sql(where.isEmpty() ? " WHERE (" : " AND (") + condition + Sql(")");
    return where;
}

QString rangeText(const std::optional<Period>& period) {
    return period ? formatDate(period->from) + " To " + formatDate(period->to) : QString();
}

static RunTexts textsOf(Connection& store, const PeriodReport& report, const std::optional<Period>& period) {
    RunTexts texts = companyTexts(store);
    texts.labels.insert(report.labels);
    texts.range = rangeText(period);
    texts.processing = report.processing;
    return texts;
}

std::optional<ReportJobParts> runOfPeriod(Connection& store, const PeriodReport& report,
                                          const std::optional<Period>& period) {
    const RunTexts texts = textsOf(store, report, period);
    if (!report.worked)
        return reportOfQuery(store, report.layout,
                             Sql(report.rows) +
                                 whereAll(report.conditions + QList{inPeriod(report.dateColumn, period)}) +
                                 Sql(report.order),
                             report.events, texts);
    auto rows = report.worked(store, period);
    if (!rows) return {};
    return ReportJobParts{report.layout, std::move(rows), report.events, texts};
}
