#include "reports/outstanding/outstanding_reports.h"

#include "platform/masks.h"
#include "reports/frame/credit_terms.h"
#include "reports/frame/list_report.h"
#include "reports/frame/report_query.h"

namespace {
using enum ReportColumn::Kind;

// What customers owe, or what the firm owes.
struct Outstanding {
    const char* name;
    const char* title;
    const char* summaryName;
    const char* summaryTitle;
    const char* contactHead;
    const char* table;  // of the documents
    const char* number;
    const char* numberHead;
    const char* date;
    const char* dateHead;
    const char* sum;
    const char* summaryOrder;  // by name or by amount
};

constexpr Outstanding receivable{.name = "prtReceivableOutstanding",
                                 .title = "Accounts Receivable Outstanding Balance",
                                 .summaryName = "prtReceiveSummaryOutstanding",
                                 .summaryTitle = "Summary of Outstanding Accounts Receivable",
                                 .contactHead = "Customer Name",
                                 .table = "tblSalesMaster",
                                 .number = "RefNo",
                                 .numberHead = "Reference",
                                 .date = "RefDate",
                                 .dateHead = "Ref Date",
                                 .sum = "RBalance",
                                 .summaryOrder = "tblContactMaster.ContactName DESC"};

constexpr Outstanding payable{.name = "prtPayableOutstanding",
                              .title = "Accounts Payable Outstanding Balance",
                              .summaryName = "prtPaySummaryOutstanding",
                              .summaryTitle = "Summary of Outstanding Accounts Payable",
                              .contactHead = "Supplier Name",
                              .table = "tblPurchaseMaster",
                              .number = "PurchaseNo",
                              .numberHead = "P.O. No.",
                              .date = "PurchaseDate",
                              .dateHead = "P.O. Date",
                              .sum = "PBalance",
                              .summaryOrder = "PBalance DESC, tblContactMaster.ContactName"};

const Outstanding& sideOf(const QString& kind) { return kind == "P" ? payable : receivable; }

ReportLayout listOf(const char* name, const char* title, const PageSetup& page,
                    const QList<ReportColumn>& columns, int totalLeft = 0) {
    ReportLayout layout = listLayout({.name = name,
                                      .caption = "Outstanding...",
                                      .page = page,
                                      .heading = {titleLine(title), runDateLine()},
                                      .headsTop = 1170,
                                      .columns = columns,
                                      .total = "Total Amount = ",
                                      .totalLeft = totalLeft,
                                      .heights = {1485, 270, 585, 495}});
    const ReportColumn& last = columns.last();
    layout.sections.first().controls +=
        recordsLine(630) + QList{line("linHead", 90, 1080, last.left + last.width - 90)};
    return layout;
}

ReportLayout documentsOf(const Outstanding& side) {
    return listOf(side.name, side.title, letterPortrait(750, 750, 10530),
                  {{side.numberHead, 90, 1530, side.number},
                   {side.dateHead, 1710, 990, side.date, Date},
                   {"Due Date", 2790, 990, "txtDueDate", Date},
                   {"Term", 3870, 990, "txtTerm"},
                   {side.contactHead, 4950, 4230, "ContactName"},
                   {"Balance", 9270, 1170, "Balance", SignedAmount, "txtTotal"}});
}

ReportLayout contactsOf(const Outstanding& side) {
    constexpr int totalLeft = 6840;
    return listOf(side.summaryName, side.summaryTitle, letterPortrait(1000, 1000, 10155),
                  {{side.contactHead, 90, 3960, "ContactName"},
                   {"Telephone No.", 4140, 1800, "TelNo"},
                   {"Term", 6030, 990, "txtTerm"},
                   {"Credit Limit", 7110, 1440, "CreditLimit", SignedAmount},
                   {"Balance", 8640, 1440, side.sum, SignedAmount, "txtTotal"}},
                  totalLeft);
}

const ReportLayout& layoutOf(const Outstanding& side, bool isSummary) {
    static const ReportLayout receivables[] = {documentsOf(receivable), contactsOf(receivable)};
    static const ReportLayout payables[] = {documentsOf(payable), contactsOf(payable)};
    return (&side == &payable ? payables : receivables)[isSummary ? 1 : 0];
}

QString openDocuments(const Outstanding& side) {
    return QString(
               " FROM %1 INNER JOIN tblContactMaster ON %1.ContactNo = tblContactMaster.ContactID WHERE "
               "%1.Balance <> 0")
        .arg(side.table);
}

QString documentRows(const Outstanding& side) {
    return QString("SELECT doc.%1, doc.%2, doc.Balance, tblContactMaster.ContactName, tblContactMaster.Terms")
               .replace("doc.", QString(side.table) + ".")
               .arg(side.number, side.date) +
           openDocuments(side) +
           QString(" ORDER BY %1.%2 ASC, %1.%3").arg(side.table, side.date, side.number);
}

QString contactRows(const Outstanding& side) {
    const QString contact =
        "tblContactMaster.ContactName, tblContactMaster.Terms, tblContactMaster.TelNo, "
        "tblContactMaster.CreditLimit";
    // By contact first: the engine brings as many rows as there are contacts to those of one name.
    return QString(
               "SELECT SUM(owed.Amount) AS %1, %2 FROM (SELECT ContactNo, SUM(Balance) AS Amount FROM %3 "
               "WHERE Balance <> 0 GROUP BY ContactNo) AS owed INNER JOIN tblContactMaster ON "
               "owed.ContactNo = tblContactMaster.ContactID")
               .arg(side.sum, contact, side.table) +
           " GROUP BY " + contact + " ORDER BY " + side.summaryOrder +
           ", tblContactMaster.Terms, tblContactMaster.TelNo, tblContactMaster.CreditLimit";
}

void fillTerm(const ReportSource& row, SectionFields& fields) {
    fields.setText("txtTerm", termText(row.currency("Terms")));
}

FormatEvent dueDocument(const Outstanding& side) {
    return [date = QString(side.date)](const ReportSource& row, SectionFields& fields) {
        fillTerm(row, fields);
        fields.setText("txtDueDate", formatDate(dueDate(row.date(date), row.currency("Terms"))));
    };
}
}  // namespace

std::optional<ReportJobParts> outstandingReport(Connection& store, const PrintRequest& request) {
    const Outstanding& side = sideOf(request.kind);
    const bool isSummary = request.selection == "optSummary";
    return reportOfQuery(store, layoutOf(side, isSummary), isSummary ? contactRows(side) : documentRows(side),
                         {{on(SectionKind::Detail), isSummary ? FormatEvent(fillTerm) : dueDocument(side)}});
}

QList<const ReportLayout*> outstandingLayouts() {
    QList<const ReportLayout*> layouts;
    for (const Outstanding* side : {&receivable, &payable})
        for (const bool isSummary : {false, true}) layouts += &layoutOf(*side, isSummary);
    return layouts;
}
