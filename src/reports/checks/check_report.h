#pragma once
#include "platform/box.h"
#include "reports/checks/check_papers.h"
#include "reports/frame/report_start.h"

class Connection;

// The checks of a voucher on one paper, one below the other. A row that was paid in cash ends them: neither
// it nor what stands behind it prints. Before anything does, the words on each check are read back into a
// number; where they differ from its figure nothing prints, and a box says which check.

// A check as its paper words it.
struct CheckTexts {
    QString payee, amount, words;
};
// For this figure, as it is printed. Throws SubscriptError for a figure that has no words.
CheckTexts checkTexts(const QString& stars, const QString& payee, const QString& figure);

// The checks of a voucher as a report; none when it has no rows. Nothing is read back.
std::optional<ReportJobParts> checkReport(Connection& store, const CheckPaper& paper,
                                          const QString& voucherNo);
// What forbids to print a voucher's checks; none: nothing does.
std::optional<Box> checkRefusal(Connection& store, const CheckPaper& paper, const QString& voucherNo);

// For entry screens and journals. Null when there is no check to print.
ReportPreview* previewChecks(Connection& store, const CheckPaper& paper, const QString& voucherNo);
// For the print hub. False: the output failed, or a check was refused.
bool runChecks(Connection& store, const CheckPaper& paper, const QString& voucherNo, ReportTarget target);
