#include "tools/counter/prtPOS.h"

#include "foundation/shared_routines.h"
#include "platform/clock.h"
#include "platform/masks.h"
#include "platform/parsing.h"

namespace {
constexpr int textHeight = 225;
constexpr TextStyle rightBold{Typeface::Verdana, 8, true, Qt::AlignRight};
// A day without such a payment is one row with nothing in it.
constexpr const char* noPayment =
    "SELECT '' AS CheckStatus, '' AS CheckNo, NULL AS CheckDate, 0 AS Amount, '' AS CustomerNo";

ReportSection pageHeader() {
    return section(
        SectionKind::PageHeader, 1530,
        {image("imgCheck", 90, 90, 1350, 1170), label("lblCompany", "", 1530, 90, 9000, 270, bold(10)),
         label("lblRunDate", "", 1530, 450, 9000, textHeight),
         label("lblCashier", "", 1530, 720, 9000, textHeight),
         label("lblSaleDate", "", 1530, 990, 9000, textHeight)});
}

ReportSection statusHeading() {
    return groupHeader(SectionKind::GroupHeader1, "CheckStatus", 630,
                       {field("txtStatus", "CheckStatus", 90, 60, 5000, textHeight, bold()),
                        label("lblContact", "Contact Name", 90, 345, 4500, textHeight, bold()),
                        label("lblCheckNo", "Check No.", 4680, 345, 2250, textHeight, bold()),
                        label("lblCheckDate", "Check Date", 7020, 345, 1350, textHeight, bold()),
                        label("lblAmount", "Amount", 8460, 345, 1890, textHeight, rightBold)});
}

ReportSection paymentLine() {
    return section(SectionKind::Detail, 285,
                   {growing(field("txtContact", "", 90, 30, 4500, textHeight)),
                    field("txtCheckNo", "CheckNo", 4680, 30, 2250, textHeight),
                    field("txtCheckDate", "CheckDate", 7020, 30, 1350, textHeight, {}, mask::date),
                    field("txtAmount", "Amount", 8460, 30, 1890, textHeight, rightAligned(), mask::amount)});
}

ReportSection statusTotal() {
    return section(
        SectionKind::GroupFooter1, 360,
        {label("lblTotal", "", 3600, 60, 4770, textHeight, rightBold),
         summing(field("txtTotal", "Amount", 8460, 60, 1890, textHeight, rightBold, mask::amount))});
}

struct SummaryLine {
    const char* name;
    const char* text;
    Currency (*figure)(const CashAudit& audit);
};

Currency cashOf(const CashAudit& audit) { return audit.cashSales - audit.nonCash; }

const SummaryLine summaryLines[] = {
    {"BeginningCash", "Beginning Cash =", [](const CashAudit& audit) { return audit.beginningCash; }},
    {"CashSales", "Cash Sales =", cashOf},
    {"NonCash", "Non-Cash Sales =", [](const CashAudit& audit) { return audit.nonCash; }},
    {"GrandTotal", "Total =", [](const CashAudit& audit) { return audit.total(); }},
    {"CashOnHand", "Beginning Cash and Cash Sales =",
     [](const CashAudit& audit) { return audit.beginningCash + cashOf(audit); }},
};

ReportSection summary() {
    QList<ReportControl> controls{line("linSummary", 3600, 120, 6750)};
    int top = 210;
    for (const SummaryLine& each : summaryLines) {
        const QString name = each.name;
        controls += label("lbl" + name, each.text, 3600, top, 4770, textHeight, rightBold);
        controls += field("txt" + name, "", 8460, top, 1890, textHeight, rightBold, mask::amount);
        top += 270;
    }
    return section(SectionKind::ReportFooter, top + 90, controls);
}

const ReportLayout& prtPOS() {
    static const ReportLayout layout{
        "prtPOS",
        "Point of Sale Report...",
        letterPortrait(750, 750, 10440),
        {pageHeader(), statusHeading(), paymentLine(), statusTotal(), summary()}};
    return layout;
}

void hide(SectionFields& fields, std::initializer_list<const char*> names) {
    for (const char* name : names) fields.setVisible(name, false);
}

void headStatus(const ReportSource& row, SectionFields& fields) {
    if (row.text("CheckNo").isEmpty())
        return hide(fields, {"txtStatus", "lblContact", "lblCheckNo", "lblCheckDate", "lblAmount"});
    if (row.text("CheckStatus").compare("Card", Qt::CaseInsensitive) != 0) return;
    fields.setText("lblCheckNo", "Approval No.");
    fields.setText("lblCheckDate", "Date");
}

void totalStatus(const ReportSource& row, SectionFields& fields) {
    if (row.text("CheckNo").isEmpty()) return hide(fields, {"lblTotal", "txtTotal"});
    fields.setText("lblTotal", "Total " + row.text("CheckStatus") + " =");
}

ReportEvents eventsOf(Connection& store, const CashAudit& audit, const CashAuditRequest& request) {
    const auto head = [&store, request](const ReportSource&, SectionFields& fields) {
        fields.setPicture("imgCheck", GetCompanyLogo(store));
        fields.setText("lblCompany", GetCompanyName(store) + " - Point of Sale System Report");
        fields.setText("lblRunDate", "Run Date :  " + formatDateTime(Clock::now()));
        fields.setText("lblCashier", "Cashier = " + request.cashier);
        fields.setText("lblSaleDate", "Sale Date = " + formatDate(*parseDate(request.date)));
    };
    const auto line = [&store](const ReportSource& row, SectionFields& fields) {
        if (row.text("CheckNo").isEmpty())
            return hide(fields, {"txtContact", "txtCheckNo", "txtCheckDate", "txtAmount"});
        fields.setText("txtContact", LookupField(store, "ContactID", "tblContactMaster", "ContactName",
                                                 row.text("CustomerNo"), LookupMode::DisplayText));
    };
    const auto foot = [audit](const ReportSource&, SectionFields& fields) {
        for (const SummaryLine& each : summaryLines)
            fields.setText(QString("txt") + each.name, formatNumber(each.figure(audit), mask::amount));
    };
    return {{on(SectionKind::PageHeader), head},
            {on(SectionKind::GroupHeader1), headStatus},
            {on(SectionKind::Detail), line},
            {on(SectionKind::GroupFooter1), totalStatus},
            {on(SectionKind::ReportFooter), foot}};
}
}  // namespace

ReportJobParts posReport(Connection& store, const CashAudit& audit, const CashAuditRequest& request) {
    Recordset rows = store.execute(audit.hasPayments ? audit.payments : Sql(noPayment));
    return {prtPOS(), std::make_unique<RecordsetSource>(std::move(rows)), eventsOf(store, audit, request)};
}
