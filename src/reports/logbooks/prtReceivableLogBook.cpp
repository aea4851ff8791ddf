#include "platform/masks.h"
#include "reports/frame/list_report.h"
#include "reports/logbooks/log_books.h"

namespace {
constexpr int printWidth = 11190;
constexpr int lineOfText = 225;
constexpr TextStyle rightBold{Typeface::Verdana, 8, true, Qt::AlignRight};
constexpr TextStyle note{Typeface::Tahoma, 8, false, Qt::AlignLeft};
const char* const signedAmount = mask::signedAmount;

struct Place {
    int left, width;
};
constexpr Place number{90, 1350}, date{1530, 1080}, total{2700, 1350}, payments{4140, 1260},
    balance{5490, 1170}, remarks{6840, 4260};

ReportControl head(const char* name, const char* text, const Place& at, const TextStyle& style = bold()) {
    return label(name, text, at.left, 2610, at.width, lineOfText, style);
}

ReportControl figure(const char* name, const Place& at, int top, const TextStyle& style) {
    return field(name, "", at.left, top, at.width, lineOfText, style, signedAmount);
}

ReportControl sum(const char* name, const char* of, const Place& at, int top) {
    return summing(field(name, of, at.left, top, at.width, lineOfText, rightBold, signedAmount));
}

ReportSection pageHeading() {
    return section(
        SectionKind::PageHeader, 2970,
        {label("Label30", "Page:", 6840, 360, 540, lineOfText),
         showing(Shows::PageText, field("fldPageNo", "", 7380, 360, 1620, lineOfText)),
         label("lblRunDate", "", 6840, 90, 4260, lineOfText), image("imgCheck", 90, 450, 1350, 1170),
         label("lblCompany", "", 1530, 450, 9570, 270, bold(10)),
         label("lblAddress", "", 1530, 720, 9570, lineOfText),
         label("lblTelNo", "", 1530, 990, 9570, lineOfText),
         label("lblTitle", "Statement of Account", 1530, 1260, 5000, 270, bold(10)),
         label("lblRange", "", 1530, 1530, 5000, lineOfText),
         label("lblTo", "To :", 90, 1890, 900, lineOfText),
         field("txtContactName", "ContactName", 990, 1890, 10110, lineOfText, bold()),
         growing(field("txtAddress", "", 990, 2160, 10110, 450)), head("lblRefNo", "D.R. No.", number),
         head("lblRefDate", "D.R. Date", date), head("lblTotalAmount", "Total Amount", total, rightBold),
         head("lblPayments", "Payments", payments, rightBold),
         head("lblBalance", "Balance", balance, rightBold), head("lblRemarks", "Remarks", remarks),
         line("linHead", 90, 2880, printWidth - 180)});
}

ReportSection document() {
    return groupHeader(
        SectionKind::GroupHeader2, "RefNo", 270,
        {growing(field("txtRefNo", "RefNo", number.left, 30, number.width, lineOfText)),
         field("txtSADate", "RefDate", date.left, 30, date.width, lineOfText, {}, mask::date),
         figure("txtNetTotal", total, 30, rightAligned()),
         growing(field("txtSalesRemarks", "Remarks", remarks.left, 30, remarks.width, lineOfText))},
        false);
}

ReportSection payment() {
    return section(SectionKind::Detail, 270,
                   {growing(field("txtChecks", "CheckNo", remarks.left, 30, 1350, lineOfText)),
                    field("txtPayment", "Amount", payments.left, 30, payments.width, lineOfText,
                          rightAligned(), signedAmount),
                    growing(field("txtRemarks", "PayRemarks", remarks.left + 1440, 30, remarks.width - 1440,
                                  lineOfText))});
}

ReportSection documentSums() {
    return section(SectionKind::GroupFooter2, 345,
                   {line("linSub", total.left, 15, balance.left + balance.width - total.left),
                    sum("txtSubNet", "txtNetTotal", total, 45), sum("txtSubPay", "txtPayment", payments, 45),
                    figure("txtSubBalance", balance, 45, rightBold)});
}

QList<ReportControl> notes() {
    const auto words = [](const char* name, const char* text, int left, int top) {
        return label(name, text, left, top, printWidth - left, lineOfText, note);
    };
    return {
        label("lblImportant", "IMPORTANT :", 90, 630, 2000, lineOfText, bold()),
        words("lblNote1",
              "1.)  IF THE ABOVE FIGURES DO NOT MATCH WITH YOUR RECORDS, PLEASE MAKE YOUR COMMUNICATIONS "
              "DIRECTLY",
              1170, 900),
        words("lblNote1b", "TO OUR ACCOUNTING OFFICE.", 1440, 1170),
        words("lblNote2",
              "2.)  PLEASE NOTE THAT COMPLAINTS FOR LACKING OR DAMAGED ITEMS MUST BE DONE WITHIN THE NEXT "
              "DAY UPON",
              1170, 1440),
        words("lblNote2b", "RECEIPT OF GOODS. COMPAINTS MADE AFTER 2 DAYS SHALL NOT BE HONORED.", 1440, 1710),
        words("lblCheckPayableTo", "", 1170, 1980)};
}

QList<ReportControl> signatures() {
    return {label("lblCertified", "CERTIFIED BY :", 1440, 2520, 3600, lineOfText),
            label("lblAppoved", "", 1440, 2970, 3600, lineOfText),
            line("linAppoved", 1440, 3270, 3600),
            label("lblSignature", "AUTHORIZED SIGNATRURE", 1440, 3330, 3600, lineOfText),
            label("lblReceived", "RECEIVED BY :", 6750, 2520, 3600, lineOfText),
            line("linReceived", 6750, 3270, 3600),
            label("lblPrintedName", "SIGNATURE OVER PRINTED NAME", 6750, 3330, 3600, lineOfText)};
}

// What ends the statement of each customer.
ReportSection statementEnd() {
    return section(
        SectionKind::GroupFooter1, 3645,
        QList{sum("txtGrandNet", "txtNetTotal", total, 0), sum("txtGrandPay", "txtPayment", payments, 0),
              figure("txtGrandBalance", balance, 0, rightBold),
              label("lblTotalOutstanding", "Total Outstanding :", 6750, 0, 1890, lineOfText, bold()),
              field("txtTotalOutstanding", "", 8640, 0, 1710, lineOfText, rightBold, mask::amount)} +
            notes() + signatures());
}
}  // namespace

const ReportLayout& prtReceivableLogBook() {
    static const ReportLayout layout{
        "prtReceivableLogBook",
        "Customer Statement of Account...",
        letterPortrait(500, 500, printWidth),
        {pageHeading(), startingPages(groupHeader(SectionKind::GroupHeader1, "ContactID", 0, {})), document(),
         payment(), documentSums(), statementEnd()}};
    return layout;
}
