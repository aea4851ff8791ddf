#include "tools/counter/cash_document.h"

#include "books/numbering.h"
#include "foundation/shared_routines.h"
#include "platform/masks.h"
#include "platform/parsing.h"
#include "platform/store/transaction.h"

namespace {
using Check = std::optional<Fault>;

// The next key is the highest plus 1; no counter keeps it.
constexpr numbering::RowKey cashKey{"", "tblPOS", "ZevRef", 1001};

QString userOf(Connection& store, const QString& fullName) {
    return LookupField(store, "UserCode", "tblUserMaster", "FullName", fullName, LookupMode::PrimaryKey);
}

Check entryFault(Connection& store, const CashEntry& entry) {
    if (trim(entry.cashier).isEmpty()) return errorFault("Please Select a Cashier!", "txtCashier");
    if (!RecordFound(store, "tblUserMaster", "FullName", trim(entry.cashier)))
        return errorFault("Cashier Does Not Exist! Please Add this to System User Profile!", "txtCashier");
    if (!isDate(entry.saleDate)) return errorFault(invalidSaleDate, "txtSaleDate");
    const auto cash = parseNumber(entry.cash);
    if (!cash) return errorFault("Invalid Beginning Cash Format!", "txtCash");
    if (*cash <= Currency()) return errorFault("Cash must not be less than or Equal to Zero!", "txtCash");
    return {};
}

Fault alreadySet(const CashEntry& entry) {
    return {exclamation("Error!    ", QString("Beginning Cash for %1 on %2 is Already Set! You may Edit "
                                              "Particular Transaction Date to Change Beginning Cash!")
                                          .arg(trim(entry.cashier), formatDate(*parseDate(entry.saleDate)))),
            "txtCashier"};
}

bool isSet(Connection& store, const QString& user, const QDate& date) {
    return !store.execute({"SELECT 1 FROM tblPOS WHERE Cashier = ? AND SalesDate = ?", {user, date}}).eof();
}

// The row of a new day, or the cash alone of an old one: two users may have one full name.
ColumnValues columnsOf(const CashEntry& entry, const QString& key, const QString& user) {
    ColumnValues values{{"PettyCash", bound(*parseNumber(entry.cash))}};
    if (!user.isEmpty())
        values << ColumnValues{
            {"ZevRef", key.toLongLong()}, {"SalesDate", *parseDate(entry.saleDate)}, {"Cashier", user}};
    return values;
}

// The test and the row are one unit, and the store keeps a cashier's day once: no other station comes
// between.
Outcome writeCash(Connection& store, const CashEntry& entry, bool addMode, QString& key) {
    const QString user = addMode ? userOf(store, trim(entry.cashier)) : QString();
    Transaction unit(store);
    if (addMode) {
        if (isSet(store, user, *parseDate(entry.saleDate))) return alreadySet(entry);
        key = QString::number(numbering::lastKey(store, cashKey));
    }
    if (const Check fault =
            writeRecord(store, cashMaster, addMode, key, columnsOf(entry, key, user), entry.edit))
        return *fault;
    unit.commit();
    return Done{};
}

Currency sumOf(Connection& store, const Sql& query, const char* column) {
    const Recordset row = store.execute(query);
    return row.eof() || row.isNull(column) ? Currency() : row.currency(column);
}

// The condition on one user; none for the whole day.
Sql ofUser(const char* column, const QString& user) {
    return user.isEmpty() ? Sql() : Sql{QString(" AND (%1 = ?)").arg(column), {user}};
}
}  // namespace

Outcome SaveCash(Connection& store, const CashEntry& entry, bool addMode, QString& key) {
    if (const Check fault = entryFault(store, entry)) return *fault;
    try {
        return writeCash(store, entry, addMode, key);
    } catch (const StoreError& error) {
        if (error.number() != StoreError::refused) throw;
        return alreadySet(entry);
    }
}

Outcome DeleteCash(Connection& store, const QString& key) { return deleteRecord(store, cashMaster, {}, key); }

Fault invalidAuditDate() { return errorFault("Invalid Transaction Date Value!", "txtDate"); }

std::optional<Fault> auditFault(const CashAuditRequest& request) {
    if (trim(request.cashier).isEmpty()) return errorFault("Please Select Cashier to Audit!", "cboCashier");
    if (!isDate(request.date)) return invalidAuditDate();
    return {};
}

std::variant<CashAudit, Fault> auditCash(Connection& store, const CashAuditRequest& request) {
    if (const auto fault = auditFault(request)) return *fault;
    const QDate date = *parseDate(request.date);
    QString user;
    if (trim(request.cashier).compare(wholeDay, Qt::CaseInsensitive) != 0) {
        user = userOf(store, trim(request.cashier));
        if (user.isEmpty()) return errorFault("Please Select Cashier to Audit!", "cboCashier");
    }
    CashAudit audit;
    audit.cashSales = sumOf(
        store,
        Sql{"SELECT SUM(PaymentAmount) AS CashSales FROM tblReceiptMaster WHERE (PaymentDate = ?)", {date}} +
            ofUser("UpdatedBy", user),
        "CashSales");
    audit.beginningCash =
        sumOf(store, Sql{"SELECT * FROM tblPOS WHERE (SalesDate = ?)", {date}} + ofUser("Cashier", user),
              "PettyCash");
    audit.payments = Sql{"SELECT tblReceiptDetails.*, tblReceiptMaster.CustomerNo FROM tblReceiptMaster "
                         "INNER JOIN tblReceiptDetails ON tblReceiptMaster.PayNo = tblReceiptDetails.PayCode "
                         "WHERE (tblReceiptDetails.CheckNo <> 'Cash') AND (tblReceiptMaster.PaymentDate = ?)",
                         {date}} +
                     ofUser("tblReceiptMaster.UpdatedBy", user) + " ORDER BY CheckStatus";
    Recordset payments = store.execute(audit.payments);
    audit.hasPayments = !payments.eof();
    for (; !payments.eof(); payments.moveNext()) audit.nonCash += payments.currency("Amount");
    if (audit.cashSales.isZero() && !audit.hasPayments)
        return Fault{
            information("No Record!", "No Payments Received on " + formatDate(date, "mmmm dd, yyyy") + "!"),
            {}};
    return audit;
}
