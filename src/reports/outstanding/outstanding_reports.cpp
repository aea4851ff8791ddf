#include "reports/outstanding/outstanding_reports.h"

#include "books/key_numbers.h"
#include "platform/masks.h"
#include "platform/store/bulk.h"
#include "reports/frame/credit_terms.h"
#include "reports/frame/list_report.h"
#include "reports/frame/worked_rows.h"

#include <algorithm>

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
    bool byAmount;  // the summary: from the highest; else by name, from the last
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
                                 .byAmount = false};

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
                              .byAmount = true};

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

struct Contact {
    QString name, phone;
    Currency terms, limit;
};

struct OpenDocument {
    int contact;
    QByteArray number, date;
    Currency balance;
};

// What is open, of contacts that the master has.
struct OpenBook {
    std::vector<Contact> contacts;
    std::vector<OpenDocument> documents;
};

enum class Order { AsItLies, ByDate };

OpenBook openBook(Connection& store, const Outstanding& side, Order order) {
    OpenBook book;
    KeyNumbers ids;
    for (BulkReader row(store,
                        "SELECT ContactID, ContactName, TelNo, Terms, CreditLimit FROM tblContactMaster");
         row.next();) {
        ids.add(row.bytes(0));
        book.contacts.push_back({row.text(1), row.text(2), row.currency(3), row.currency(4)});
    }
    QString documents = "SELECT ContactNo, %1, %2, Balance FROM %3 WHERE Balance <> 0";
    if (order == Order::ByDate) documents += " ORDER BY %2 ASC, %1";
    for (BulkReader row(store, documents.arg(side.number, side.date, side.table)); row.next();)
        if (const int contact = ids.find(row.bytes(0)); contact >= 0)
            book.documents.push_back(
                {contact, row.bytes(1).toByteArray(), row.bytes(2).toByteArray(), row.currency(3)});
    return book;
}

std::unique_ptr<ReportSource> documentRows(OpenBook book, const Outstanding& side) {
    using Rows = WorkedRows<OpenDocument>;
    const auto contacts = std::make_shared<const std::vector<Contact>>(std::move(book.contacts));
    const auto of = [contacts](const OpenDocument& open) -> const Contact& {
        return (*contacts)[static_cast<size_t>(open.contact)];
    };
    return std::make_unique<Rows>(
        std::move(book.documents),
        std::vector<Rows::Column>{
            {side.number, [](const OpenDocument& open) { return QString::fromUtf8(open.number); }},
            {side.date,
             [](const OpenDocument& open) {
                 return QDate::fromString(QString::fromLatin1(open.date.left(10)), Qt::ISODate);
             }},
            {"Balance", [](const OpenDocument& open) { return open.balance; }},
            {"ContactName", [of](const OpenDocument& open) { return of(open).name; }},
            {"Terms", [of](const OpenDocument& open) { return of(open).terms; }}});
}

struct OpenContact {
    Contact contact;
    Currency balance = {};
};

// One row for contacts of one name, terms, telephone number and limit.
std::vector<OpenContact> openContacts(const OpenBook& book) {
    KeyNumbers alike;
    std::vector<int> rowOf(book.contacts.size(), -1);
    std::vector<OpenContact> rows;
    for (const OpenDocument& open : book.documents) {
        const Contact& contact = book.contacts[static_cast<size_t>(open.contact)];
        int& row = rowOf[static_cast<size_t>(open.contact)];
        if (row < 0)
            row = alike.add((contact.name + '\n' + contact.phone + '\n' + contact.terms.toPlainText() + '\n' +
                             contact.limit.toPlainText())
                                .toUtf8());
        if (static_cast<size_t>(row) == rows.size()) rows.push_back({contact});
        rows[static_cast<size_t>(row)].balance += open.balance;
    }
    return rows;
}

void sort(std::vector<OpenContact>& rows, const Outstanding& side) {
    const auto byName = [](const OpenContact& a, const OpenContact& b) {
        return compareKeys(a.contact.name.toUtf8(), b.contact.name.toUtf8());
    };
    std::ranges::sort(rows, [&](const OpenContact& a, const OpenContact& b) {
        if (side.byAmount && a.balance != b.balance) return a.balance > b.balance;
        if (const int names = byName(a, b)) return side.byAmount ? names < 0 : names > 0;
        if (a.contact.terms != b.contact.terms) return a.contact.terms < b.contact.terms;
        if (const int phones = compareKeys(a.contact.phone.toUtf8(), b.contact.phone.toUtf8()))
            return phones < 0;
        return a.contact.limit < b.contact.limit;
    });
}

std::unique_ptr<ReportSource> contactRows(const OpenBook& book, const Outstanding& side) {
    using Rows = WorkedRows<OpenContact>;
    std::vector<OpenContact> rows = openContacts(book);
    sort(rows, side);
    return std::make_unique<Rows>(
        std::move(rows), std::vector<Rows::Column>{
                             {side.sum, [](const OpenContact& open) { return open.balance; }},
                             {"ContactName", [](const OpenContact& open) { return open.contact.name; }},
                             {"Terms", [](const OpenContact& open) { return open.contact.terms; }},
                             {"TelNo", [](const OpenContact& open) { return open.contact.phone; }},
                             {"CreditLimit", [](const OpenContact& open) { return open.contact.limit; }}});
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
    OpenBook book = openBook(store, side, isSummary ? Order::AsItLies : Order::ByDate);
    if (book.documents.empty()) return {};
    return ReportJobParts{layoutOf(side, isSummary),
                          isSummary ? contactRows(book, side) : documentRows(std::move(book), side),
                          {{on(SectionKind::Detail), isSummary ? FormatEvent(fillTerm) : dueDocument(side)}}};
}

QList<const ReportLayout*> outstandingLayouts() {
    QList<const ReportLayout*> layouts;
    for (const Outstanding* side : {&receivable, &payable})
        for (const bool isSummary : {false, true}) layouts += &layoutOf(*side, isSummary);
    return layouts;
}
