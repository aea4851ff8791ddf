#include "platform/masks.h"
#include "reports/frame/list_report.h"
#include "reports/logbooks/log_books.h"

namespace {
constexpr int printWidth = 11190;
constexpr int lineOfText = 225;
constexpr TextStyle rightBold{Typeface::Verdana, 8, true, Qt::AlignRight};

struct Place {
    int left, width;
};
constexpr Place number{90, 1620}, date{1800, 990}, due{2880, 1080}, total{4050, 1530}, payments{5670, 1440},
    remarks{7200, 3900}, balance{9630, 1470};
constexpr Place balanceWords{7200, 2430};

ReportControl head(const char* name, const char* text, const Place& at, const TextStyle& style = bold()) {
    return label(name, text, at.left, 1080, at.width, lineOfText, style);
}

ReportControl sum(const char* name, const char* of, const Place& at, int top) {
    return summing(field(name, of, at.left, top, at.width, lineOfText, rightBold, mask::signedAmount));
}

QList<ReportControl> balanceLine(const char* name, const char* words, int top) {
    return {
        label(QString("lbl") + name, words, balanceWords.left, top, balanceWords.width, lineOfText, bold()),
        field(QString("txt") + name, "", balance.left, top, balance.width, lineOfText, rightBold,
              mask::signedAmount)};
}

ReportSection pageHeading() {
    return section(
        SectionKind::PageHeader, 1380,
        {label("lblCompany", "", 90, 90, 6750, 270, bold(10)),
         label("lblTitle", "Accounts Payable Log Book", 90, 360, 6750, 270, bold()),
         label("lblDateRange", "", 90, 630, 6750, lineOfText),
         label("lblRunDate", "", 6930, 90, 4170, lineOfText), head("lblPurchaseNo", "P.O. No.", number),
         head("lblPurchaseDate", "P.O. Date", date), head("lblDueDate", "Due Date", due),
         head("lblTotalAmount", "Total Amount", total, rightBold),
         head("lblPayments", "Payments", payments, rightBold), head("lblRemarks", "Remarks", remarks),
         line("linHead", 90, 1335, printWidth - 180)});
}

ReportSection supplier() {
    return groupHeader(SectionKind::GroupHeader1, "ContactID", 345,
                       {label("lblSupplier", "Supplier :", 90, 60, 990, lineOfText),
                        field("txtContactName", "ContactName", 1080, 60, 9900, lineOfText, bold())});
}

ReportSection order() {
    return groupHeader(
        SectionKind::GroupHeader2, "PurchaseNo", 270,
        {growing(field("txtPurchaseNo", "PurchaseNo", number.left, 30, number.width, lineOfText)),
         field("txtPurchaseDate", "PurchaseDate", date.left, 30, date.width, lineOfText, {}, mask::date),
         field("txtDueDate", "", due.left, 30, due.width, lineOfText, {}, mask::date),
         field("txtNetTotal", "PurchaseAmount", total.left, 30, total.width, lineOfText, rightAligned(),
               mask::signedAmount),
         growing(field("txtRemarks", "Remarks", remarks.left, 30, remarks.width, lineOfText))},
        false);
}

ReportSection payment() {
    return section(
        SectionKind::Detail, 270,
        {field("txtPayment", "PayAmount", payments.left, 30, payments.width, lineOfText, rightAligned(),
               mask::signedAmount),
         growing(field("txtParticulars", "Particulars", remarks.left, 30, remarks.width, lineOfText))});
}

ReportSection orderSums() {
    return section(
        SectionKind::GroupFooter2, 345,
        QList{sum("txtSubNet", "txtNetTotal", total, 30), sum("txtSubPay", "txtPayment", payments, 30)} +
            balanceLine("SubBalance", "P.O. Balance =", 30));
}

ReportSection supplierSums() {
    return section(
        SectionKind::GroupFooter1, 1110,
        QList{line("linGrand", total.left, 45, printWidth - 90 - total.left),
              sum("txtGrandNet", "txtNetTotal", total, 90), sum("txtGrandPay", "txtPayment", payments, 90)} +
            balanceLine("GrandBalance", "Statement Balance", 90) +
            balanceLine("TotalOutstanding", "Total Outstanding Balance", 360));
}

ReportSection pageEnd() {
    return section(SectionKind::PageFooter, 1080,
                   {label("lblPage", "Page:", 90, 90, 540, lineOfText),
                    showing(Shows::PageText, field("fldPageNo", "", 630, 90, 1620, lineOfText)),
                    label("lblAppoved", "", 7380, 390, 3600, lineOfText), line("linAppoved", 7380, 675, 3600),
                    label("lblSignature", "Authorized Signature", 7380, 720, 3600, lineOfText)});
}
}  // namespace

const ReportLayout& prtPayableLogBook() {
    static const ReportLayout layout{
        "prtPayableLogBook",
        "Supplier Payable Log Book...",
        letterPortrait(500, 500, printWidth),
        {pageHeading(), supplier(), order(), payment(), orderSums(), supplierSums(), pageEnd()}};
    return layout;
}
