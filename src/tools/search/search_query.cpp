#include "tools/search/search_query.h"

#include "books/balance_figures.h"
#include "books/balances.h"
#include "platform/masks.h"
#include "platform/parsing.h"

#include <algorithm>

namespace {
constexpr const char* notApplicable = "-NA-";

// The sums of a contact's two balances, as the routines for one contact take them, for all rows at once.
constexpr const char* contactSums =
    "tblContactMaster.*, "
    "(SELECT SUM(TotalAmount) FROM tblSalesMaster WHERE ContactNo = ContactID) AS Halin, "
    "(SELECT SUM(PaymentAmount) FROM tblReceiptMaster WHERE CustomerNo = ContactID) AS Bayad, "
    "(SELECT SUM(TotalDiscAmount) FROM tblReceiptMaster WHERE CustomerNo = ContactID) AS Palugit, "
    "(SELECT SUM(PurchaseAmount) FROM tblPurchaseMaster WHERE ContactNo = ContactID) AS Gipamalit, "
    "(SELECT SUM(tblDisbursementDetails.PayAmount) FROM tblDisbursementMaster INNER JOIN "
    "tblDisbursementDetails ON tblDisbursementMaster.VoucherNo = tblDisbursementDetails.VoucherID "
    "WHERE tblDisbursementMaster.ContactNo = ContactID AND tblDisbursementDetails.DirectPayment = 0) "
    "AS Gipangbayran";
constexpr const char* contactsAlone = "tblContactMaster.*";

Search itemSearch(const SearchKind& kind) {
    // An item without a known supplier is found, too.
    return {&kind,
            nullptr,
            "tblItemMaster.*, tblContactMaster.ContactName",
            "tblItemMaster LEFT OUTER JOIN tblContactMaster ON tblContactMaster.ContactID = "
            "tblItemMaster.SupplierCode",
            "tblItemMaster",
            {}};
}

Search contactSearch(const SearchKind& kind) {
    return {&kind, nullptr, contactSums, "tblContactMaster", "tblContactMaster", {}};
}

Search transactionSearch(const SearchKind& kind, const SearchJournal& journal) {
    return {&kind,
            &journal,
            QString("tblContactMaster.ContactName, tblContactMaster.Terms, %1.*").arg(journal.table),
            QString("%1 INNER JOIN tblContactMaster ON %1.%2 = tblContactMaster.ContactID")
                .arg(journal.table, journal.contact),
            journal.table,
            {}};
}

Fault error(const char* text, const char* focus) { return {exclamation("Error!", text), focus}; }

// The focus stays where the person has gone: another kind of search would be out of reach.
Fault invalidDate() { return error("Invalid Date Value!", ""); }

QString columnOf(const SearchFilter& filter, const SearchJournal* journal) {
    if (*filter.column || !journal) return filter.column;
    return QString("%1.%2").arg(journal->table,
                                filter.match == SearchFilter::Date ? journal->date : journal->reference);
}

Sql conditionOf(const SearchFilter& filter, const SearchJournal* journal, const QString& value) {
    const QString column = columnOf(filter, journal);
    if (filter.match == SearchFilter::Date) return {column + " = ?", {*parseDate(value)}};
    return {column + " LIKE ?", {anywhere(value)}};
}

// Every filled filter adds its condition, in their order.
SearchAnswer withConditions(Search search, const QStringList& filters) {
    const auto& all = search.kind->filters;
    for (size_t place = 0; place < all.size(); ++place) {
        const QString value = trim(filters.value(static_cast<qsizetype>(place)));
        if (value.isEmpty()) continue;
        if (all[place].match == SearchFilter::Date && !isDate(value)) return invalidDate();
        search.where += Sql(search.where.isEmpty() ? " WHERE " : " AND ");
        search.where += conditionOf(all[place], search.journal, value);
    }
    if (search.where.isEmpty()) return std::monostate();
    return search;
}

// ---- the rows as they are shown

QString amountText(const Recordset& row, const char* column) {
    return formatNumber(row.currency(column), mask::amount);
}

QString daysText(const Recordset& row) { return row.currency("Terms").toPlainText() + " Days"; }

QStringList itemRow(const Recordset& row) {
    return {row.trimmed("ItemCode"),      row.trimmed("Description"),      row.trimmed("ContactName"),
            amountText(row, "CostPrice"), amountText(row, "SellingPrice"), row.trimmed("Unit"),
            amountText(row, "Balance"),   row.trimmed("Locator"),          row.trimmed("Remarks")};
}

Term termOf(const Recordset& row, const char* column) {
    return row.isNull(column) ? Term() : Term(row.currency(column));
}

QStringList contactRow(const Recordset& row, Currency receivable, Currency payable) {
    return {row.trimmed("ContactName"),
            row.trimmed("Address"),
            row.trimmed("TelNo"),
            daysText(row),
            amountText(row, "CreditLimit"),
            formatNumber(receivable, mask::amount),
            formatNumber(payable, mask::amount)};
}

QStringList contactRow(const Recordset& row) {
    return contactRow(row,
                      receivableFigure(termOf(row, "Halin"), termOf(row, "Bayad"), termOf(row, "Palugit")),
                      differenceFigure(termOf(row, "Gipamalit"), termOf(row, "Gipangbayran")));
}

QStringList transactionRow(const Recordset& row, const SearchJournal& journal) {
    const QDate date = row.date(journal.date);
    const qint64 days = row.currency("Terms").tenThousandths() / 10000;
    return {journal.book,
            row.trimmed(journal.reference),
            formatDate(date),
            journal.hasTerms ? daysText(row) : notApplicable,
            journal.hasTerms ? formatDate(date.addDays(days)) : notApplicable,
            amountText(row, journal.amount),
            journal.hasTerms ? amountText(row, "Balance") : notApplicable,
            row.trimmed("ContactName")};
}

QStringList shownRow(const Search& search, const Recordset& row) {
    if (search.journal) return transactionRow(row, *search.journal);
    return search.table == "tblItemMaster" ? itemRow(row) : contactRow(row);
}

Sql pageOf(const Search& search, qint64 after, int rows) {
    Sql page(QString("SELECT %1, %2.rowid AS RowKey FROM %3").arg(search.columns, search.table, search.from));
    page += search.where;
    page += Sql{QString(" %1 %2.rowid > ? ORDER BY %2.rowid LIMIT ?")
                    .arg(search.where.isEmpty() ? "WHERE" : "AND", search.table),
                {after, rows}};
    return page;
}

SearchPage pageFrom(Recordset found, int rows, const std::function<QStringList(const Recordset&)>& shown) {
    SearchPage page;
    for (; !found.eof(); found.moveNext()) {
        page.rows += shown(found);
        page.last = found.integer("RowKey");
    }
    if (page.rows.size() < rows) page.last.reset();
    return page;
}

// One contact whose sum leaves the range would fail the page for all: there each is computed by itself.
SearchPage contactsOneByOne(Connection& store, Search search, qint64 after, int rows) {
    search.columns = contactsAlone;
    return pageFrom(store.execute(pageOf(search, after, rows)), rows, [&](const Recordset& row) {
        const QString id = row.text("ContactID");
        return contactRow(row, CustomerBalance(store, id), SupplierBalance(store, id));
    });
}
}  // namespace

const std::vector<SearchJournal>& searchJournals() {
    static const std::vector<SearchJournal> journals{
        {"Sales Journal", "Sales", "S", "D.R. No.", "tblSalesMaster", "ContactNo", "RefNo", "RefDate",
         "TotalAmount", true},
        {"Receipt Journal", "Receipt", "R", "Payment No.", "tblReceiptMaster", "CustomerNo", "PayNo",
         "PaymentDate", "PaymentAmount", false},
        {"Purchase Journal", "Purchase", "P", "P.O. No.", "tblPurchaseMaster", "ContactNo", "PurchaseNo",
         "PurchaseDate", "PurchaseAmount", true},
        {"Disbursement Journal", "Disbursement", "D", "Voucher No.", "tblDisbursementMaster", "ContactNo",
         "VoucherNo", "VoucherDate", "VoucherAmount", false},
    };
    return journals;
}

const SearchJournal* findSearchJournal(const QString& name) {
    const auto found = std::ranges::find(searchJournals(), name, &SearchJournal::name);
    return found == searchJournals().end() ? nullptr : &*found;
}

const std::vector<SearchKind>& searchKinds() {
    constexpr auto number = ListColumn::Number;
    constexpr auto date = ListColumn::Date;
    static const std::vector<SearchKind> kinds{
        {"Inquire Item",
         "fraItem",
         "Item",
         "lvwItem",
         "cmdClear",
         "InqItemAccess",
         "PrintItemAccess",
         false,
         false,
         {{"txtItemCode", "Item Code :", "ItemCode"},
          {"txtDescription", "Description :", "Description"},
          {"txtContactName", "Major Supplier :", "ContactName"},
          {"txtUnit", "Unit :", "Unit"},
          {"txtLocator", "Locator :", "Locator"}},
         {{"Item Code", 14},
          {"Description", 30},
          {"Major Supplier", 24},
          {"Cost Price", 12, number},
          {"Selling Price", 13, number},
          {"Unit", 8},
          {"Inventory", 12, number},
          {"Locator", 12},
          {"Remarks", 24}}},
        {"Inquire Contact Balance",
         "fraCustomer",
         "Contact",
         "lvwCustomer",
         "cmdClearContact",
         "InqContactAccess",
         "PrintContactAccess",
         false,
         true,
         {{"txtCustomer", "Contact Name :", "ContactName"}},
         {{"Contact Name", 30},
          {"Address", 34},
          {"Tel. No.", 16},
          {"Term", 10},
          {"Credit Limit", 14, number},
          {"Receivable Balance", 18, number},
          {"Payable Balance", 16, number}}},
        {"Inquire Transaction Balance",
         "fraTransaction",
         "Transaction",
         "lvwTransaction",
         "cmdClearTransaction",
         "InqJournalAccess",
         "PrintJournalAccess",
         true,
         false,
         {{"txtReference", "Reference :", ""},
          {"txtRefDate", "Date :", "", SearchFilter::Date},
          {"txtWho", "Contact Name :", "ContactName"}},
         {{"Book Name", 14},
          {"Reference", 16},
          {"Date", 12, date},
          {"Term", 10},
          {"Due Date", 12, date},
          {"Amount", 14, number},
          {"Book Balance", 14, number},
          {"Contact Name", 30}}},
    };
    return kinds;
}

const SearchKind* findSearchKind(const QString& name) {
    const auto found = std::ranges::find(searchKinds(), name, &SearchKind::name);
    return found == searchKinds().end() ? nullptr : &*found;
}

Sql Search::statement() const { return Sql(QString("SELECT %1 FROM %2").arg(columns, from)) + where; }

SearchAnswer prepareSearch(const SearchRequest& request) {
    const SearchKind* kind = findSearchKind(request.kind);
    if (!kind) return error("Please Select Proper Search Type!", "cboType");
    const SearchJournal* journal = kind->hasJournals ? findSearchJournal(request.journal) : nullptr;
    if (kind->hasJournals && !journal) return error("Please Select Transaction Journal First!", "cboJournal");
    const bool isItems = !kind->hasJournals && !kind->followsKeys;
    if (isItems && !request.all && !trim(request.itemDate).isEmpty() && !isDate(request.itemDate))
        return invalidDate();
    const Search search = journal   ? transactionSearch(*kind, *journal)
                          : isItems ? itemSearch(*kind)
                                    : contactSearch(*kind);
    if (request.all) return search;
    return withConditions(search, request.filters);
}

SearchPage readPage(Connection& store, const Search& search, qint64 after, int rows) {
    try {
        return pageFrom(store.execute(pageOf(search, after, rows)), rows,
                        [&](const Recordset& row) { return shownRow(search, row); });
    } catch (const StoreError& error) {
        if (search.columns != contactSums || error.number() == StoreError::busy) throw;
        return contactsOneByOne(store, search, after, rows);
    }
}
