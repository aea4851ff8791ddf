#pragma once
#include "platform/outcome.h"
#include "platform/store/sql.h"
#include "reports/frame/report_events.h"

#include <QDate>
#include <optional>

class Connection;

// What a person asks a print screen for, as typed.
struct PrintRequest {
    QString kind = {};       // that the screen was opened with
    QString selection = {};  // of cboSelection, or the option button that is set: "optSummary"
    bool allDays = false;    // the period is excluded
    QString from = {}, to = {};
    QString contact = {};      // its name; empty: none was asked for
    QString item = {};         // its code
    QString description = {};  // of an item, or a part of one
    bool zeroOnly = false;     // only what has no balance
};

// From the first day to the last one's midnight. What bears a time of the last day lies outside.
struct Period {
    QDate from, to;
};
// None where all days count, or where what was typed is no date.
std::optional<Period> periodOf(const PrintRequest& request);
// "03/01/2026 To 03/31/2026"; empty for all days.
QString rangeText(const std::optional<Period>& period);
// The fault of a period that is in force and is no period of dates.
std::optional<Fault> periodFault(const PrintRequest& request, const char* invalidDate);
inline constexpr const char* invalidDateValue = "Invalid Date Value!";
inline constexpr const char* invalidDateEntered = "Invalid Date Value Entered!";
// "tblSalesMaster.RefDate BETWEEN ? AND ?"; empty for all days.
Sql inPeriod(const QString& dateColumn, const std::optional<Period>& period);
// " WHERE (tblSalesMaster.RefDate BETWEEN ? AND ?)"; empty for all days.
Sql wherePeriod(const QString& dateColumn, const std::optional<Period>& period);

// " WHERE (...) AND (...)", all of these that are not empty; empty when none is.
Sql whereAll(const QList<Sql>& conditions);

// A report of the rows of a period.
struct PeriodReport {
    const ReportLayout& layout;
    QString rows;  // "SELECT ... FROM ...", up to its condition
    QString dateColumn;
    QString order;  // " GROUP BY ... ORDER BY ..."
    ReportEvents events = {};
    QHash<QString, QString> labels = {};  // besides those of the company
    QList<Sql> conditions = {};           // of its rows, before that of the period: "ContactName = ?"
    QString processing = {};              // what the status screen says while it works
    // Instead of the query: the rows of the period worked out in memory; null when there are none.
    std::function<std::unique_ptr<ReportSource>(Connection& store, const std::optional<Period>& period)>
        worked = {};
};
// Its run; none when no row lies in the period.
std::optional<ReportJobParts> runOfPeriod(Connection& store, const PeriodReport& report,
                                          const std::optional<Period>& period);
