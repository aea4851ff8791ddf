#pragma once
#include "platform/store/sql.h"
#include "reports/frame/report_events.h"

#include <optional>

class Connection;

// The list of checks that the Report menu and the check screens print: those received, and those issued.
struct DueChecks {
    const char* name;
    const char* caption;
    const char* heading;
    const char* from;   // what its checks are read from
    const char* table;  // that the checks stand in
    const char* amount;
    const char* referenceHead;
    const char* reference;
    const char* contactHead;
};
extern const DueChecks prtReceivableDueChecks;
extern const DueChecks prtPayableDueChecks;

const ReportLayout& dueChecksLayout(const DueChecks& list);

// The checks that have come due by today and are not settled, by date.
Sql checksDue(const DueChecks& list);

// The run over these rows, under this title; none when there is no row. A report of cards shows the remarks
// of the payment, which name the holder, in place of the contact. The store must outlive the run.
std::optional<ReportJobParts> dueChecksReport(Connection& store, const DueChecks& list, const Sql& rows,
                                              const QString& title = "Due Checks Report");
