#include "tools/search/search_query.h"

#include "books/contact_balances.h"
#include "masters/master_records.h"
#include "platform/masks.h"
#include "platform/parsing.h"
#include "platform/store/bulk.h"
#include "platform/store/place.h"

#include <algorithm>

namespace {
constexpr const char* notApplicable = "-NA-";

constexpr const char* contactColumns = "ContactName, Address, TelNo, Terms, CreditLimit, ContactID";

Search itemSearch(const SearchKind& kind) {
    // An item without a known supplier is found, too.
    return {&kind,
            nullptr,
            "ItemCode, Description, ContactName, CostPrice, SellingPrice, Unit, Balance, Locator, "
            "tblItemMaster.Remarks",
            "tblItemMaster.*, tblContactMaster.ContactName",
            "tblItemMaster LEFT OUTER JOIN tblContactMaster ON tblContactMaster.ContactID = "
            "tblItemMaster.SupplierCode",
            "tblItemMaster",
            {}};
}

Search contactSearch(const SearchKind& kind) {
    return {&kind, nullptr, contactColumns, "*", "tblContactMaster", "tblContactMaster", {}};
}

Search transactionSearch(const SearchKind& kind, const SearchJournal& journal) {
    QStringList columns{"ContactName", "Terms", journal.reference, journal.date, journal.amount};
    if (journal.hasTerms) columns += "Balance";
    return {&kind,
            &journal,
            columns.join(", "),
            QString("tblContactMaster.ContactName, tblContactMaster.Terms, %1.*").arg(journal.table),
            QString("%1 INNER JOIN tblContactMaster ON %1.%2 = tblContactMaster.ContactID")
                .arg(journal.table, journal.contact),
            journal.table,
            {}};
}

// The focus stays where the person has gone: another kind of search would be out of reach.
Fault invalidDate() { return errorFault("Invalid Date Value!", ""); }

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

// A row as the store gives it. Its number comes first, the columns of the list from 1.
class FoundRow {
  public:
    explicit FoundRow(const BulkReader& row) : row_(row) {}
    qint64 number() const { return row_.integer(0); }
    QString text(int column) const { return trim(row_.text(column)); }
    QString amount(int column) const { return formatNumber(row_.currency(column), mask::amount); }
    QString days(int column) const { return row_.currency(column).toPlainText() + " Days"; }
    qint64 wholeDays(int column) const { return row_.currency(column).tenThousandths() / 10000; }
    QDate date(int column) const { return QDate::fromString(row_.text(column).left(10), Qt::ISODate); }
    QString key(int column) const { return row_.text(column); }

  private:
    const BulkReader& row_;
};

QStringList itemRow(const FoundRow& row) {
    return {row.text(1), row.text(2),   row.text(3), row.amount(4), row.amount(5),
            row.text(6), row.amount(7), row.text(8), row.text(9)};
}

// Without its balances.
QStringList contactRow(const FoundRow& row) {
    return {row.text(1), row.text(2), row.text(3), row.days(4), row.amount(5)};
}

QStringList transactionRow(const FoundRow& row, const SearchJournal& journal) {
    const QDate date = row.date(4);
    if (!journal.hasTerms)
        return {journal.book,  row.text(3),   formatDate(date), notApplicable,
                notApplicable, row.amount(5), notApplicable,    row.text(1)};
    return {journal.book,
            row.text(3),
            formatDate(date),
            row.days(2),
            formatDate(date.addDays(row.wholeDays(2))),
            row.amount(5),
            row.amount(6),
            row.text(1)};
}

Sql pageOf(Connection& store, const Search& search, qint64 after, int rows) {
    const QString key = QString("%1.%2").arg(search.table, keyOf(store, search.table));
    Sql page(QString("SELECT %2, %1 FROM %3").arg(search.columns, key, search.from));
    page += search.where;
    page += Sql{QString(" %1 %2 > ? ORDER BY %2 LIMIT ?").arg(search.where.isEmpty() ? "WHERE" : "AND", key),
                {after, rows}};
    return page;
}

SearchPage pageFrom(Connection& store, const Search& search, qint64 after, int rows,
                    const std::function<QStringList(const FoundRow&)>& shown) {
    SearchPage page;
    BulkReader found(store, pageOf(store, search, after, rows));
    const FoundRow row(found);
    while (found.next()) {
        page.rows += shown(row);
        page.last = row.number();
    }
    if (page.rows.size() < rows) page.last.reset();
    return page;
}

Sql contactsWith(const QStringList& keys) {
    const QVariantList values(keys.begin(), keys.end());
    const QString marks = QStringList(keys.size(), "?").join(", ");
    return {"SELECT ContactID FROM tblContactMaster WHERE ContactID IN (" + marks + ')', values};
}

// The balances of a page's contacts come by two statements, not by two for each.
SearchPage contactsFrom(Connection& store, const Search& search, qint64 after, int rows) {
    QStringList keys;
    SearchPage page = pageFrom(store, search, after, rows, [&](const FoundRow& row) {
        keys += row.key(6);
        return contactRow(row);
    });
    if (keys.isEmpty()) return page;
    const Sql contacts = contactsWith(keys);
    const KeyedFigures receivable = CustomerBalances(store, contacts);
    const KeyedFigures payable = SupplierBalances(store, contacts);
    for (qsizetype at = 0; at < keys.size(); ++at)
        for (const KeyedFigures* balances : {&receivable, &payable})
            page.rows[at] += formatNumber(balances->of(keys[at]), mask::amount);
    return page;
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
         {{"Item Code", 12},
          {"Description", 30},
          {"Major Supplier", 20},
          {"Cost Price", 11, number},
          {"Selling Price", 12, number},
          {"Unit", 7},
          {"Inventory", 10, number},
          {"Locator", 10},
          {"Remarks", 16}}},
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

Sql Search::statement() const { return Sql(QString("SELECT %1 FROM %2").arg(printed, from)) + where; }

SearchAnswer prepareSearch(const SearchRequest& request) {
    const SearchKind* kind = findSearchKind(request.kind);
    if (!kind) return errorFault("Please Select Proper Search Type!", "cboType");
    const SearchJournal* journal = kind->hasJournals ? findSearchJournal(request.journal) : nullptr;
    if (kind->hasJournals && !journal)
        return errorFault("Please Select Transaction Journal First!", "cboJournal");
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
    if (search.kind->followsKeys) return contactsFrom(store, search, after, rows);
    return pageFrom(store, search, after, rows, [&](const FoundRow& row) {
        return search.journal ? transactionRow(row, *search.journal) : itemRow(row);
    });
}
