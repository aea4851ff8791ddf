#include "reports/checks/due_checks.h"

#include "foundation/shared_routines.h"
#include "platform/clock.h"
#include "reports/frame/list_report.h"
#include "reports/frame/report_query.h"

const DueChecks prtReceivableDueChecks{
    .name = "prtReceivableDueChecks",
    .caption = "Due Checks...",
    .heading = "Accounts Receivable",
    .from =
        "(tblContactMaster INNER JOIN tblReceiptMaster ON tblContactMaster.ContactID = "
        "tblReceiptMaster.CustomerNo) INNER JOIN tblReceiptDetails ON tblReceiptMaster.PayNo = "
        "tblReceiptDetails.PayCode",
    .table = "tblReceiptDetails",
    .amount = "Amount",
    .referenceHead = "Ref No.",
    .reference = "Reference",
    .contactHead = "Customer Name"};

const DueChecks prtPayableDueChecks{
    .name = "prtPayableDueChecks",
    .caption = "Due Checks...",
    .heading = "Accounts Payable",
    .from = "tblContactMaster INNER JOIN tblChecks ON tblContactMaster.ContactID = tblChecks.ContactNo",
    .table = "tblChecks",
    .amount = "CheckAmount",
    .referenceHead = "Voucher No.",
    .reference = "VoucherID",
    .contactHead = "Payee Name"};

namespace {
const QString cardTitle = "Credit Card Payment Report";

ReportLayout layoutOf(const DueChecks& list) {
    using enum ReportColumn::Kind;
    ReportLayout layout = listLayout(
        {.name = list.name,
         .caption = list.caption,
         .page = letterPortrait(750, 750, 10530),
         .heading = {label("lblHeading", list.heading, 0, 0, 0, 270, bold(10)), titleLine(""), runDateLine()},
         .headsTop = 1350,
         .columns = {{"Check No.", 90, 1710, "CheckNo"},
                     {"Check Date", 1890, 1080, "CheckDate", Date},
                     {"Amount", 3060, 1170, list.amount, Amount, "txtTotalAmount"},
                     {"Status", 4320, 1260, "CheckStatus"},
                     {list.referenceHead, 5670, 1440, list.reference},
                     {list.contactHead, 7200, 3240, "ContactName"}},
         .total = "Total Amount = "});
    layout.sections.first().controls += recordsLine(900);
    return layout;
}

void headCards(const ReportSource&, SectionFields& fields) {
    fields.setText("lblCheckNo", "Approval No.");
    fields.setText("lblCheckDate", "Date");
    fields.setText("lblContactName", "Card No. / Card Holder");
}

// The clerk wrote number and holder of the card into the remarks of the payment.
ReportEvents cardEvents(Connection& store) {
    return {{on(SectionKind::PageHeader), headCards},
            {on(SectionKind::Detail), [&store](const ReportSource& row, SectionFields& fields) {
                 fields.setText("txtContactName",
                                LookupField(store, "PayNo", "tblReceiptMaster", "PayRemarks",
                                            row.text("PayCode"), LookupMode::DisplayText));
             }}};
}
}  // namespace

const ReportLayout& dueChecksLayout(const DueChecks& list) {
    static const ReportLayout received = layoutOf(prtReceivableDueChecks);
    static const ReportLayout issued = layoutOf(prtPayableDueChecks);
    return &list == &prtReceivableDueChecks ? received : issued;
}

Sql checksDue(const DueChecks& list) {
    return {QString("SELECT tblContactMaster.ContactName, %1.* FROM %2 WHERE %1.CheckNo <> 'Cash' AND "
                    "%1.Negotiated = 0 AND %1.CheckDate <= ? ORDER BY %1.CheckDate, %1.ZevRef")
                .arg(QString(list.table), QString(list.from)),
            {bound(Clock::today())}};
}

std::optional<ReportJobParts> dueChecksReport(Connection& store, const DueChecks& list, const Sql& rows,
                                              const QString& title) {
    return reportOfQuery(store, dueChecksLayout(list), rows,
                         title == cardTitle ? cardEvents(store) : ReportEvents{},
                         {.labels = {{"lblTitle", title}}});
}
