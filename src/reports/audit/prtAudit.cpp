#include "reports/audit/prtAudit.h"

#include "foundation/shared_routines.h"
#include "platform/box.h"
#include "platform/masks.h"
#include "platform/parsing.h"
#include "reports/frame/list_report.h"

#include <algorithm>

namespace {
struct AuditedBook {
    const char* selection;
    const char* codeHead;
    const char* descriptionHead;
    const char* table;
    const char* code;
    const char* date;     // of the document; null: the record has none
    const char* contact;  // of the document; null: the record bears a name itself
    const char* name = nullptr;
};

constexpr AuditedBook books[] = {{"Audit Sales Journal", "D.R. No.", "Delivery Receipt Details",
                                  "tblSalesMaster", "RefNo", "RefDate", "ContactNo"},
                                 {"Audit Receipt Journal", "Payment No.", "Payment Details",
                                  "tblReceiptMaster", "PayNo", "PaymentDate", "CustomerNo"},
                                 {"Audit Purchase Journal", "P.O No.", "Purchase Order Details",
                                  "tblPurchaseMaster", "PurchaseNo", "PurchaseDate", "ContactNo"},
                                 {"Audit Disbursement Journal", "Voucher No.", "Voucher Details",
                                  "tblDisbursementMaster", "VoucherNo", "VoucherDate", "ContactNo"},
                                 {"Audit Item Inventory", "Item Code", "Item Description", "tblItemMaster",
                                  "ItemCode", nullptr, nullptr, "Description"},
                                 {"Audit Contact Master File", "Contact ID", "Contact Name",
                                  "tblContactMaster", "ContactID", nullptr, nullptr, "ContactName"}};

const AuditedBook* bookOf(const QString& selection) {
    const auto* book =
        std::ranges::find_if(books, [&](const AuditedBook& row) { return selection == row.selection; });
    return book == std::end(books) ? nullptr : book;
}

QString rowsOf(const AuditedBook& book) {
    const QString columns =
        QString(
            "SELECT book.%1 AS Code, %2 AS CodeDate, %3 AS Description, book.UpdatedBy, "
            "book.DateUpdate FROM %4 AS book")
            .arg(book.code, book.date ? QString("book.") + book.date : QString("NULL"),
                 book.contact ? QString("tblContactMaster.ContactName") : QString("book.") + book.name,
                 book.table);
    return book.contact
               ? columns + " LEFT JOIN tblContactMaster ON tblContactMaster.ContactID = book." + book.contact
               : columns;
}

void fillCode(const ReportSource& row, SectionFields& fields) {
    const QString code = row.text("Code");
    fields.setText("txtCode", row.isNull("CodeDate")
                                  ? code
                                  : code + " " + formatDateTime(row.dateTime("CodeDate"), mask::date));
}

Box refusal(const QString& text) { return exclamation("Error!", text); }
}  // namespace

const ReportLayout& prtAudit() {
    using enum ReportColumn::Kind;
    static const ReportLayout layout =
        listLayout({.name = "prtAudit",
                    .caption = "Audit Trail...",
                    .page = letterPortrait(750, 750, 10470),
                    .heading = {titleLine("Audit Trail"), runDateLine()},
                    .headsTop = 990,
                    .columns = {{"", 90, 1800, "txtCode"},
                                {"", 1980, 4770, "Description"},
                                {"Updated By", 6840, 1440, "UpdatedBy"},
                                {"Date / Time  Updated", 8370, 2070, "DateUpdate", DateTime}},
                    .foot = {label("lblCount", "", 5850, 90, 4590, 225)}});
    return layout;
}

QStringList auditedBooks() {
    QStringList selections;
    for (const AuditedBook& book : books) selections += book.selection;
    return selections;
}

std::optional<Fault> auditFault(Connection&, const PrintRequest& request) {
    if (trim(request.selection).isEmpty())
        return Fault{refusal("Please Select a Transaction to Audit!"), "cboSelection"};
    if (!bookOf(request.selection)) return Fault{refusal("Invalid Audit Type Selected!"), "cboSelection"};
    if (auto fault = periodFault(request, invalidDateValue)) return fault;
    const Period period = *periodOf(request);
    if (period.from.daysTo(period.to) > 0) return {};
    return Fault{exclamation("Two Days Minimum!", "Please Make Audit Date to at least Two Days!"), "txtFrom"};
}

// The count is that of the whole table, whatever the period.
std::optional<ReportJobParts> auditReport(Connection& store, const PrintRequest& request) {
    const AuditedBook& book = *bookOf(request.selection);
    const QString count = QString::number(CountRecords(store, book.table));
    return runOfPeriod(store,
                       {.layout = prtAudit(),
                        .rows = rowsOf(book),
                        .dateColumn = "book.DateUpdate",
                        .order = " ORDER BY book.DateUpdate DESC",
                        .events = {{on(SectionKind::Detail), fillCode}},
                        .labels = {{"lblCode", book.codeHead},
                                   {"lblDescription", book.descriptionHead},
                                   {"lblCount", "There are " + count + " Transactions..."}}},
                       periodOf(request));
}
