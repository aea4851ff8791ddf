#include "reports/documents/prtSalesInvoice.h"

#include "platform/masks.h"
#include "reports/documents/document_parts.h"
#include "reports/frame/report_query.h"

namespace {
const PageSetup page = letterPortrait(750, 650, 10785);

constexpr TextStyle tight{Typeface::Tahoma, 8, false, Qt::AlignLeft};
constexpr TextStyle tightNumber{Typeface::Tahoma, 8, false, Qt::AlignRight};
constexpr TextStyle head{Typeface::Tahoma, 8, true, Qt::AlignLeft};
constexpr TextStyle numberHead{Typeface::Tahoma, 8, true, Qt::AlignRight};

// A column of the lines: a figure or a date where it has a mask.
struct Column {
    const char* head;
    const char* name;
    int left, width;
    const char* column;  // empty: from the order paid
    const char* mask;
    bool isFigure;
};
constexpr Column columns[] = {{"Reference", "txtReference", 90, 1440, "Reference", nullptr, false},
                              {"D.R. Date", "txtDRDate", 1620, 1080, "", nullptr, false},
                              {"D.R. Amount", "txtDRAmount", 2790, 1260, "", nullptr, true},
                              {"Discount", "txtDiscount", 4140, 1080, "DiscountAmount", mask::amount, true},
                              {"Net Amount", "txtNetAmount", 5310, 1530, "Amount", mask::amount, true},
                              {"Check No.", "txtCheckNo", 6930, 1440, "CheckNo", nullptr, false},
                              {"Remarks", "txtDRRemarks", 8460, 2250, "", nullptr, false}};

const DocumentPaper& paper() {
    static const DocumentPaper invoice{
        .title = "Sales Invoice",
        .party = "Paid By :",
        .number = "Invoice No. :",
        .numberColumn = "PayNo",
        .date = "Invoice Date :",
        .dateColumn = "PaymentDate",
        .numberLeft = 7290,
        .signatures = {{"PREPARED BY:", "lblPrepared", 90}, {"CHECKED BY:", "lblChecked", 3330}}};
    return invoice;
}

QList<ReportControl> heads() {
    QList<ReportControl> controls;
    for (const Column& column : columns)
        controls += label(QString("lbl") + (column.name + 3), column.head, column.left, 2340, column.width,
                          225, column.isFigure ? numberHead : head);
    return controls;
}

ReportSection paymentLine() {
    QList<ReportControl> controls;
    for (const Column& column : columns) {
        const ReportControl control = field(column.name, column.column, column.left, 30, column.width, 225,
                                            column.isFigure ? tightNumber : tight, column.mask);
        controls += column.isFigure ? control : growing(control);
    }
    return section(SectionKind::Detail, 285, controls);
}

ReportSection footer() {
    return section(SectionKind::ReportFooter, 1965,
                   QList{label("lblTotal", "Total = ", 3780, 90, 1440, 225, numberHead),
                         summing(field("txtTotal", "Amount", 5310, 90, 1530, 225, numberHead, mask::price))} +
                       documentSignatures(paper()));
}

Sql linesOf(const QString& payNo) {
    return {
        "SELECT tblReceiptMaster.PayNo, tblReceiptMaster.PaymentDate, tblContactMaster.ContactName, "
        "tblContactMaster.Address, tblContactMaster.TelNo, tblContactMaster.Terms, tblReceiptDetails.* FROM "
        "(tblContactMaster INNER JOIN tblReceiptMaster ON tblContactMaster.ContactID = "
        "tblReceiptMaster.CustomerNo) INNER JOIN tblReceiptDetails ON tblReceiptMaster.PayNo = "
        "tblReceiptDetails.PayCode WHERE tblReceiptMaster.PayNo = ? ORDER BY tblReceiptDetails.ZevRef",
        {payNo}};
}

// Empty for an order that has gone.
void fillLine(Connection& store, const ReportSource& row, SectionFields& fields) {
    const Recordset order =
        store.execute({"SELECT RefDate, TotalAmount, Remarks FROM tblSalesMaster WHERE RefNo = ?",
                       {row.text("Reference")}});
    if (order.eof()) return;
    fields.setText("txtDRDate", formatDate(order.date("RefDate")));
    fields.setText("txtDRAmount", formatNumber(order.currency("TotalAmount"), mask::amount));
    fields.setText("txtDRRemarks", order.trimmed("Remarks"));
}
}  // namespace

const ReportLayout& prtSalesInvoice() {
    static const ReportLayout layout{
        "prtSalesInvoice",
        "Sales Invoice...",
        page,
        {documentHeader(paper(), heads()), paymentLine(), footer(), pageOfPagesFooter(page)}};
    return layout;
}

std::optional<ReportJobParts> salesInvoiceReport(Connection& store, const QString& payNo) {
    return reportOfQuery(
        store, prtSalesInvoice(), linesOf(payNo),
        {{on(SectionKind::PageHeader), fillDocumentHeading},
         {on(SectionKind::Detail),
          [&store](const ReportSource& row, SectionFields& fields) { fillLine(store, row, fields); }}},
        documentTexts(store));
}

const DocumentTagging& salesInvoiceTagging() {
    static const DocumentTagging tagging{{{"tblReceiptMaster", "PayNo"}},
                                         "Do you want to Tag this Sales Invoice as Printed?"};
    return tagging;
}
