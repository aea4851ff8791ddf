#include "tools/counter/cash_document.h"

#include "books/numbering.h"
#include "foundation/shared_routines.h"
#include "masters/master_records.h"
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
    if (!isDate(entry.saleDate)) return errorFault("Invalid Sale Date Format!", "txtSaleDate");
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

// The test and the row are one unit, and the store keeps a cashier's day once: no other station comes
// between.
Outcome addCash(Connection& store, const CashEntry& entry) {
    const QString user = userOf(store, trim(entry.cashier));
    const QDate date = *parseDate(entry.saleDate);
    Transaction unit(store);
    if (isSet(store, user, date)) return alreadySet(entry);
    Recordset row = store.openTable("tblPOS");
    row.addNew();
    row.set("ZevRef", numbering::lastKey(store, cashKey));
    row.set("PettyCash", *parseNumber(entry.cash));
    row.set("SalesDate", date);
    row.set("Cashier", user);
    row.update();
    unit.commit();
    return Done{};
}

Outcome changeCash(Connection& store, const CashEntry& entry, qint64 key) {
    Transaction unit(store);
    Recordset row = store.openTable("tblPOS", {"WHERE ZevRef = ?", {key}});
    row.set("PettyCash", *parseNumber(entry.cash));
    row.update();
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

Outcome saveCash(Connection& store, const CashEntry& entry, std::optional<qint64> key) {
    if (const Check fault = entryFault(store, entry)) return *fault;
    try {
        return key ? changeCash(store, entry, *key) : addCash(store, entry);
    } catch (const StoreError& error) {
        if (error.number() != StoreError::refused) throw;
        return alreadySet(entry);
    }
}

void deleteCash(Connection& store, qint64 key) { store.run({"DELETE FROM tblPOS WHERE ZevRef = ?", {key}}); }

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
