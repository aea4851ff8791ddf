#include "reports/logbooks/log_book_reports.h"

#include "books/contact_balances.h"
#include "foundation/shared_routines.h"
#include "platform/clock.h"
#include "platform/masks.h"
#include "reports/frame/credit_terms.h"
#include "reports/logbooks/log_book_rows.h"
#include "reports/logbooks/log_books.h"

namespace {
struct LogBook {
    const ReportLayout& (*layout)();
    LogBookTables tables;
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
    fields.setText("txtDueDate", formatDate(dueDate(row.date("PurchaseDate"), row.currency("Terms"))));
}

const LogBook& bookOf(const QString& kind) {
    static const LogBook receivable{
        .layout = prtReceivableLogBook,
        .tables = {.master = "tblSalesMaster",
                   .number = "RefNo",
                   .date = "RefDate",
                   .amount = "TotalAmount",
                   .payments =
                       "SELECT paid.Reference, paid.Amount, paid.DiscountAmount, paid.CheckNo, "
                       "tblReceiptMaster.PayRemarks, NULL, NULL, paid.ZevRef FROM tblReceiptDetails AS "
                       "paid LEFT JOIN tblReceiptMaster ON tblReceiptMaster.PayNo = paid.PayCode",
                   .paidNumber = "paid.Reference",
                   .paymentFilter = "",
                   .payment = "Amount",
                   .texts = {"CheckNo", "PayRemarks"}},
        .pageHeading = fillAddress,
        .document = fillNet,
        .balances = CustomerBalances};
    static const LogBook payable{
        .layout = prtPayableLogBook,
        .tables = {.master = "tblPurchaseMaster",
                   .number = "PurchaseNo",
                   .date = "PurchaseDate",
                   .amount = "PurchaseAmount",
                   .payments = "SELECT paid.PuchaseID, paid.PayAmount, 0, paid.Particulars, NULL, "
                               "tblDisbursementMaster.VoucherDate, paid.VoucherID, paid.PayAmount FROM "
                               "tblDisbursementDetails AS paid LEFT JOIN tblDisbursementMaster ON "
                               "tblDisbursementMaster.VoucherNo = paid.VoucherID",
                   .paidNumber = "paid.PuchaseID",
                   .paymentFilter = "paid.DirectPayment = False",
                   .payment = "PayAmount",
                   .texts = {"Particulars", "#none"}},
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

// The condition of the contacts that are asked for; empty: of all.
Sql asked(const PrintRequest& request) {
    if (request.contact.isEmpty()) return {};
    return {" WHERE ContactName = ?", {request.contact}};
}

// One contact among all.
Sql idsOf(const Sql& contacts) {
    return contacts.isEmpty() ? Sql() : Sql("SELECT ContactID FROM tblContactMaster") + contacts;
}

Sql documentsOf(const LogBook& book, const PrintRequest& request) {
    Sql ofContact;
    if (const Sql ids = idsOf(asked(request)); !ids.isEmpty())
        ofContact = Sql("ContactNo IN (") + ids + Sql(")");
    return whereAll({ofContact, inPeriod(book.tables.date, periodOf(request))});
}

ReportEvents eventsOf(Connection& store, const LogBook& book, const PrintRequest& request) {
    ReportEvents events{
        {on(SectionKind::GroupHeader2), book.document},
        {on(SectionKind::GroupFooter2), endDocument},
        {on(SectionKind::GroupFooter1), endContact(book.balances(store, idsOf(asked(request))))}};
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
    const auto rows = [&](Connection& books, const std::optional<Period>&) {
        return logBookRows(books, book.tables, asked(request), documentsOf(book, request));
    };
    return runOfPeriod(store,
                       {.layout = book.layout(),
                        .rows = {},
                        .dateColumn = {},
                        .order = {},
                        .events = eventsOf(store, book, request),
                        .labels = labelsOf(store, period),
                        .worked = rows},
                       period);
}
