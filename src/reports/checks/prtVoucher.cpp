#include "reports/checks/prtVoucher.h"

#include "foundation/shared_routines.h"
#include "platform/masks.h"
#include "platform/parsing.h"
#include "reports/frame/list_report.h"
#include "reports/frame/report_query.h"

namespace {
constexpr int lineOfText = 225;
constexpr TextStyle tight{Typeface::Tahoma, 8, false, Qt::AlignLeft};
constexpr TextStyle tightNumber{Typeface::Tahoma, 8, false, Qt::AlignRight};
constexpr TextStyle head{Typeface::Tahoma, 8, true, Qt::AlignLeft};
constexpr TextStyle numberHead{Typeface::Tahoma, 8, true, Qt::AlignRight};

const PageSetup page = letterPortrait(500, 400, 11070);

// A label, and beside it a field of the voucher: its number is narrowed before it breaks.
QList<ReportControl> labelled(const char* name, const char* caption, int left, int top, int fieldLeft,
                              int fieldWidth, const char* column, const char* fieldMask = nullptr) {
    ReportControl value =
        field(QString("txt") + name, column, fieldLeft, top, fieldWidth, lineOfText, {}, fieldMask);
    value.grows = !fieldMask;
    value.isWhole = column == QLatin1StringView("VoucherNo");
    return {label(QString("lbl") + name, caption, left, top, fieldLeft - left, lineOfText), value};
}

QList<ReportControl> signatures() {
    return {line("linReceived", 7650, 810, 1980),
            label("lblReceived", "Received By", 7650, 855, 1980, lineOfText),
            label("lblPrintName", "Print Name & Sign", 7650, 1080, 1980, lineOfText),
            line("linReceivedDate", 9810, 810, 1170),
            label("lblReceivedDate", "Date", 9810, 855, 1170, lineOfText)};
}

ReportSection slip() {
    const QList<ReportControl> heading{
        growing(label("lblCompany1", "", 90, 90, 7020, 270, bold(10))),
        label("CompanyName", "Acknowledgement ", 7650, 90, 3330, 270, bold(10))};
    return section(
        SectionKind::ReportHeader, 1740,
        heading + labelled("SlipNumber", "Voucher No. :", 90, 360, 1440, 5670, "VoucherNo") +
            labelled("SlipDate", "Date :", 90, 630, 1440, 5670, "VoucherDate", mask::date) +
            labelled("SlipAmount", "Amount :", 90, 900, 1440, 5670, "VoucherAmount", mask::amount) +
            labelled("SlipPayee", "Payee Name :", 90, 1170, 1440, 5670, "ContactName") + signatures() +
            QList{line("linSlip", 90, 1620, 10890)});
}

QList<ReportControl> companyBlock() {
    return {image("imgCheck", 90, 90, 1440, 1260),
            growing(label("lblCompany2", "", 1620, 90, 9360, 270, bold(10))),
            growing(label("lblAddress", "", 1620, 360, 9360, lineOfText)),
            growing(label("lblTelNo", "", 1620, 630, 9360, lineOfText)),
            label("lblTitle", "Payment Voucher", 7650, 990, 3330, 300, bold(12))};
}

QList<ReportControl> columnHeads() {
    const auto at = [](const char* text, int left, int width, const TextStyle& style) {
        return label(QString("head%1").arg(left), text, left, 2340, width, lineOfText, style);
    };
    return {line("linHead", 90, 2250, 10890),          line("linLeft", 90, 2250, 0, 375),
            line("linMiddle", 6570, 2250, 0, 375),     line("linRight", 10980, 2250, 0, 375),
            at("P.O. # / Ref. #", 90, 1620, head),     at("Date", 1800, 900, head),
            at("Amount", 2790, 1170, numberHead),      at("Particulars", 4050, 2520, head),
            at("Check No.", 6660, 1620, head),         at("Check Date", 8370, 1170, head),
            at("Check Amount", 9630, 1350, numberHead)};
}

ReportSection voucherHeading() {
    return section(SectionKind::PageHeader, 2625,
                   companyBlock() + labelled("Payee", "Payee Name :", 90, 1440, 1440, 5670, "ContactName") +
                       labelled("Remarks", "Remarks :", 90, 1710, 1440, 5670, "Remarks") +
                       labelled("Number", "Voucher No. :", 7650, 1350, 9000, 1980, "VoucherNo") +
                       labelled("Date", "Voucher Date :", 7650, 1620, 9000, 1980, "VoucherDate", mask::date) +
                       labelled("Amount", "Amount :", 7650, 1890, 9000, 1980, "VoucherAmount", mask::amount) +
                       columnHeads());
}

ReportSection voucherFooter() {
    return section(SectionKind::ReportFooter, 2295,
                   {label("lblChecked", "Certified Correct:", 180, 270, 4500, lineOfText),
                    growing(label("txtChecked", "", 180, 900, 4500, lineOfText)),
                    label("lblApproved", "Approved:", 5850, 270, 4500, lineOfText),
                    growing(label("txtApproved", "", 5850, 900, 4500, lineOfText))});
}

// A payment that lacks something shows a dash for it.
void fillReference(const ReportSource& row, SectionFields& fields) {
    for (const char* name : {"txtRefNo", "txtPODate", "txtRemarks"})
        if (fields.text(name).isEmpty()) fields.setText(name, "-");
    fields.setFigure("txtAmount", numberOrZero(formatNumber(row.currency("PayAmount"), mask::amount)));
}

std::optional<ReportJobParts> referencesOf(Connection& store, const QString& voucherNo) {
    return reportOfQuery(
        store, prtVoucherReference(),
        {"SELECT * FROM tblDisbursementDetails WHERE VoucherID = ? ORDER BY RowNo", {voucherNo}},
        {{on(SectionKind::Detail), fillReference}});
}

std::optional<ReportJobParts> checksOf(Connection& store, const QString& voucherNo) {
    return reportOfQuery(
        store, prtVoucherChecks(),
        {"SELECT CheckNo, CheckDate, CheckAmount FROM tblChecks WHERE VoucherID = ? ORDER BY ZevRef",
         {voucherNo}});
}

// A half without rows stays empty.
void attach(SectionFields& fields, const char* control, std::optional<ReportJobParts> half) {
    if (half) fields.setSubReport(control, std::make_shared<ReportJobParts>(std::move(*half)));
}

RunTexts textsOf(Connection& store) {
    RunTexts texts = companyTexts(store);
    const QString company = GetCompanyName(store);
    texts.labels.insert({{"lblCompany1", company},
                         {"lblCompany2", company},
                         {"txtChecked", GetCheckedBy(store)},
                         {"txtApproved", GetApprovedBy(store)}});
    return texts;
}

Sql voucherOf(const QString& voucherNo) {
    return {
        "SELECT tblDisbursementMaster.VoucherNo, tblDisbursementMaster.VoucherDate, "
        "tblDisbursementMaster.VoucherAmount, tblDisbursementMaster.Remarks, tblContactMaster.ContactName "
        "FROM tblContactMaster INNER JOIN tblDisbursementMaster ON tblContactMaster.ContactID = "
        "tblDisbursementMaster.ContactNo WHERE tblDisbursementMaster.VoucherNo = ?",
        {voucherNo}};
}
}  // namespace

const ReportLayout& prtVoucher() {
    static const ReportLayout layout{
        "prtVoucher",
        "Payment Voucher...",
        page,
        {slip(), voucherHeading(),
         section(SectionKind::Detail, 375,
                 {subReport("subReference", 90, 0, 6480), subReport("subChecks", 6660, 0, 4320)}),
         voucherFooter(), pageOfPagesFooter(page)}};
    return layout;
}

const ReportLayout& prtVoucherReference() {
    static const ReportLayout layout{
        "prtVoucherReference",
        "",
        {},
        {section(SectionKind::Detail, 270,
                 {growing(field("txtRefNo", "PuchaseID", 90, 0, 1620, lineOfText, tight)),
                  field("txtPODate", "PurchaseDate", 1710, 0, 900, lineOfText, tight, mask::date),
                  field("txtAmount", "PayAmount", 2700, 0, 1170, lineOfText, tightNumber, mask::amount),
                  growing(field("txtRemarks", "Particulars", 3960, 0, 2520, lineOfText, tight))}),
         section(SectionKind::ReportFooter, 270,
                 {label("lblRefTotal", "Total : ", 1800, 0, 900, lineOfText, head),
                  summing(field("txtRefTotal", "txtAmount", 2700, 0, 1170, lineOfText, numberHead,
                                mask::amount))})}};
    return layout;
}

const ReportLayout& prtVoucherChecks() {
    static const ReportLayout layout{
        "prtVoucherChecks",
        "",
        {},
        {section(SectionKind::Detail, 285,
                 {growing(field("txtNo", "CheckNo", 90, 0, 1620, lineOfText, tight)),
                  field("txtDate", "CheckDate", 1800, 0, 1170, lineOfText, tight, mask::date),
                  field("txtAmount", "CheckAmount", 2970, 0, 1350, lineOfText, tightNumber, mask::amount)})}};
    return layout;
}

std::optional<ReportJobParts> voucherReport(Connection& store, const QString& voucherNo) {
    const auto attachHalves = [&store, voucherNo](const ReportSource&, SectionFields& fields) {
        attach(fields, "subReference", referencesOf(store, voucherNo));
        attach(fields, "subChecks", checksOf(store, voucherNo));
    };
    return reportOfQuery(store, prtVoucher(), voucherOf(voucherNo), {{on(SectionKind::Detail), attachHalves}},
                         textsOf(store));
}

const DocumentTagging& voucherTagging() {
    static const DocumentTagging tagging{{{.table = "tblChecks", .key = "VoucherID", .isLocked = false},
                                          {"tblDisbursementMaster", "VoucherNo"}},
                                         "Do you want to Tag this Payment Voucher as Printed?"};
    return tagging;
}
