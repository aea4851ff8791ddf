#include "reports/logbooks/log_book_reports.h"

#include "books/contact_balances.h"
#include "foundation/shared_routines.h"
#include "platform/clock.h"
#include "platform/masks.h"
#include "reports/frame/credit_terms.h"
#include "reports/logbooks/log_books.h"

namespace {
// A document, and one row for each of its payments; one without payments comes once.
struct LogBook {
    const ReportLayout& (*layout)();
    const char* rows;
    const char* date;
    const char* order;
    FormatEvent pageHeading = {};
    FormatEvent document;
    KeyedFigures (*balances)(Connection& store, const Sql& contacts);
};

void fillAddress(const ReportSource& row, SectionFields& fields) {
    fields.setText("txtAddress", row.text("Address") + '\n' + row.text("TelNo"));
}

void fillNet(const ReportSource& row, SectionFields& fields) {
    fields.setFigure("txtNetTotal", row.currency("TotalAmount") - row.currency("Granted"));
}

void fillDueDate(const ReportSource& row, SectionFields& fields) {
    fields.setText("txtDueDate",
                   formatDate(dueDate(row.dateTime("PurchaseDate").date(), row.currency("Terms"))));
}

const LogBook& bookOf(const QString& kind) {
    static const LogBook receivable{
        .layout = prtReceivableLogBook,
        .rows =
            "SELECT tblContactMaster.ContactID, tblContactMaster.ContactName, tblContactMaster.Address, "
            "tblContactMaster.TelNo, tblSalesMaster.RefNo, tblSalesMaster.RefDate, tblSalesMaster.Remarks, "
            "tblSalesMaster.TotalAmount, (SELECT SUM(DiscountAmount) FROM tblReceiptDetails WHERE Reference "
            "= "
            "tblSalesMaster.RefNo) AS Granted, paid.Amount, paid.CheckNo, tblReceiptMaster.PayRemarks FROM "
            "((tblSalesMaster INNER JOIN tblContactMaster ON tblSalesMaster.ContactNo = "
            "tblContactMaster.ContactID) LEFT JOIN tblReceiptDetails AS paid ON paid.Reference = "
            "tblSalesMaster.RefNo) LEFT JOIN tblReceiptMaster ON tblReceiptMaster.PayNo = paid.PayCode",
        .date = "tblSalesMaster.RefDate",
        .order =
            " ORDER BY tblContactMaster.ContactName, tblContactMaster.ContactID, tblSalesMaster.RefDate, "
            "tblSalesMaster.RefNo, paid.ZevRef",
        .pageHeading = fillAddress,
        .document = fillNet,
        .balances = CustomerBalances};
    static const LogBook payable{
        .layout = prtPayableLogBook,
        .rows =
            "SELECT tblContactMaster.ContactID, tblContactMaster.ContactName, tblContactMaster.Terms, "
            "tblPurchaseMaster.PurchaseNo, tblPurchaseMaster.PurchaseDate, tblPurchaseMaster.Remarks, "
            "tblPurchaseMaster.PurchaseAmount, paid.PayAmount, paid.Particulars FROM ((tblPurchaseMaster "
            "INNER JOIN tblContactMaster ON tblPurchaseMaster.ContactNo = tblContactMaster.ContactID) LEFT "
            "JOIN tblDisbursementDetails AS paid ON paid.PuchaseID = tblPurchaseMaster.PurchaseNo AND "
            "paid.DirectPayment = False) LEFT JOIN tblDisbursementMaster ON tblDisbursementMaster.VoucherNo "
            "= "
            "paid.VoucherID",
        .date = "tblPurchaseMaster.PurchaseDate",
        .order =
            " ORDER BY tblContactMaster.ContactName, tblContactMaster.ContactID, "
            "tblPurchaseMaster.PurchaseDate, tblPurchaseMaster.PurchaseNo, "
            "tblDisbursementMaster.VoucherDate, "
            "paid.VoucherID, paid.PayAmount, paid.Particulars",
        .document = fillDueDate,
        .balances = SupplierBalances};
    return kind == "P" ? payable : receivable;
}

void fillBalance(SectionFields& fields, const char* net, const char* paid, const char* balance) {
    fields.setFigure(balance, fields.figure(net) - fields.figure(paid));
}

void endDocument(const ReportSource&, SectionFields& fields) {
    fillBalance(fields, "txtSubNet", "txtSubPay", "txtSubBalance");
}

FormatEvent endContact(KeyedFigures balances) {
    return [balances = std::move(balances)](const ReportSource& row, SectionFields& fields) {
        fillBalance(fields, "txtGrandNet", "txtGrandPay", "txtGrandBalance");
        fields.setFigure("txtTotalOutstanding", balances.of(row.text("ContactID")));
    };
}

QList<Sql> asked(const PrintRequest& request) {
    if (request.contact.isEmpty()) return {};
    return {Sql{"tblContactMaster.ContactName = ?", {request.contact}}};
}

ReportEvents eventsOf(Connection& store, const LogBook& book, const PrintRequest& request) {
    const Sql contacts = whereAll(asked(request));
    ReportEvents events{
        {on(SectionKind::GroupHeader2), book.document},
        {on(SectionKind::GroupFooter2), endDocument},
        {on(SectionKind::GroupFooter1),
         endContact(book.balances(
             store, contacts.isEmpty() ? Sql() : Sql("SELECT ContactID FROM tblContactMaster") + contacts))}};
    if (book.pageHeading) events.insert(on(SectionKind::PageHeader), book.pageHeading);
    return events;
}

QHash<QString, QString> labelsOf(Connection& store, const std::optional<Period>& period) {
    const QString range = period ? rangeText(period) : "As of " + formatDate(Clock::today());
    const QString firm = GetCompanyName(store).toUpper();
    return {{"lblRange", range},
            {"lblDateRange", range},
            {"lblRunDate", "Date Printed :  " + formatDateTime(Clock::now())},
            {"lblAppoved", GetApprovedBy(store)},
            {"lblCheckPayableTo", "3.)  ALL CHECK PAYMENTS MUST BE MADE PAYABLE TO " +
                                      (firm.isEmpty() ? "OUR COMPANY" : firm) + "."}};
}
}  // namespace

std::optional<Fault> logBookFault(Connection& store, const PrintRequest& request) {
    if (!request.contact.isEmpty() && !RecordFound(store, "tblContactMaster", "ContactName", request.contact))
        return Fault{exclamation("Does not exist!",
                                 QString("%1 Does Not Exist, Please Select Proper %1 to Generate Report...")
                                     .arg(request.kind == "P" ? "Supplier" : "Customer")),
                     "cboContact"};
    return periodFault(request, invalidDateEntered);
}

std::optional<ReportJobParts> logBookReport(Connection& store, const PrintRequest& request) {
    const LogBook& book = bookOf(request.kind);
    const auto period = periodOf(request);
    return runOfPeriod(store,
                       {.layout = book.layout(),
                        .rows = book.rows,
                        .dateColumn = book.date,
                        .order = book.order,
                        .events = eventsOf(store, book, request),
                        .labels = labelsOf(store, period),
                        .conditions = asked(request)},
                       period);
}
