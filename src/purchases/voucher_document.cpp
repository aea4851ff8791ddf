#include "purchases/voucher_document.h"

#include "books/balances.h"
#include "books/numbering.h"
#include "books/record_lock.h"
#include "foundation/session.h"
#include "foundation/shared_routines.h"
#include "masters/master_records.h"
#include "platform/clock.h"
#include "platform/masks.h"
#include "platform/parsing.h"
#include "platform/store/place.h"
#include "platform/store/read_ahead.h"
#include "platform/store/transaction.h"

namespace {
constexpr const char* cashWord = "Cash";

QString asAmount(Currency value) { return formatNumber(value, mask::amount); }

// Checks

std::optional<Fault> numberFault(Connection& store, const VoucherDocument& voucher) {
    const QString code = trim(voucher.code);
    if (code.isEmpty()) return Fault{exclamation("No Code!", "Please enter Voucher No.!"), "txtCode"};
    if (voucher.addMode && RecordFound(store, disbursementBook.table, disbursementBook.key, code))
        return errorFault("Duplicate Voucher No., Please Assign Another!", "txtSerialCode");
    return serialFault(voucher);
}

std::optional<Fault> totalFault(const VoucherDocument& voucher) {
    if (paymentTotal(voucher.payments) > Currency()) return std::nullopt;
    return Fault{exclamation("Net Amount!", "Amount is Less Than or Equal to Zero! Please Enter Net Amount!"),
                 "lvwItems"};
}

std::optional<Fault> tallyFault(const VoucherDocument& voucher) {
    if (voucher.cash || CheckTotal(voucher.checks) == paymentTotal(voucher.payments)) return std::nullopt;
    return errorFault(
        "You Have Indicated this as Check Disbursement. Payment Details Total Does Not Tally with Checks "
        "Amount Issued!",
        "lvwCheck");
}

// Saving

Currency figure(const QString& text) {
    if (const auto value = parseNumber(text)) return *value;
    throw StoreError(StoreError::typeMismatch, "Type mismatch");
}

QVariant dateOrNull(const QString& text) {
    if (trim(text).isEmpty()) return QDate();
    if (const auto date = parseDate(text)) return *date;
    throw StoreError(StoreError::typeMismatch, "Type mismatch");
}

// One save: the voucher, and what all its steps share. The unit is its caller's.
class VoucherSave {
  public:
    VoucherSave(Connection& store, const VoucherDocument& voucher)
        : store_(store),
          voucher_(voucher),
          code_(trim(voucher.code)),
          contactId_(contactIdOf(store, voucher.contactName)),
          date_(parseDate(voucher.date).value_or(QDate())),
          amount_(paymentTotal(voucher.payments)) {}

    Boxes run() {
        writeMaster();
        writeDetails();
        writeChecks();
        return boxes_;
    }

  private:
    Recordset masterRow() {
        if (!voucher_.addMode)
            return store_.openTable(disbursementBook.table,
                                    {QString("WHERE %1 = ?").arg(disbursementBook.key), {code_}});
        Recordset row = store_.openTable(disbursementBook.table);
        row.addNew();
        row.set(disbursementBook.key, code_);
        return row;
    }

    void writeMaster() {
        Recordset row = masterRow();
        row.set("VoucherDate", date_);
        row.set("VoucherAmount", amount_);
        row.set("ContactNo", contactId_);
        row.set("Remarks", trim(voucher_.remarks));
        row.set("Printed", false);
        row.set("RecordLock", false);
        row.set("MonthGroup", formatDate(date_, "mm"));
        row.set("UpdatedBy", session().CurrentUserCode);
        row.set("DateUpdate", Clock::today());
        row.update();
        if (voucher_.addMode) numbering::storeSerial(store_, numbering::disbursement, voucher_.serial);
    }

    void writeDetails() {
        DeleteWhereValue(store_, code_, "tblDisbursementDetails", "VoucherID");
        Recordset details = store_.openTable("tblDisbursementDetails");
        QStringList orders;
        for (const PaymentLine& payment : voucher_.payments) {
            writePayment(details, payment);
            orders += trim(payment.reference);
        }
        UpdatePurchaseBalances(store_, orders);
    }

    void writePayment(Recordset& details, const PaymentLine& payment) {
        details.addNew();
        details.set("VoucherID", code_);
        details.set("PuchaseID", trim(payment.reference));
        details.set("PurchaseDate", dateOrNull(payment.date));
        details.set("PayAmount", figure(payment.amount));
        details.set("Particulars", trim(payment.particulars));
        details.set("DirectPayment", payment.kind() == PaymentKind::Direct);
        details.addLater();
    }

    void writeChecks() {
        DeleteWhereValue(store_, code_, "tblChecks", "VoucherID");
        const qint64 count = voucher_.cash ? 1 : voucher_.checks.size();
        const qint64 firstKey = numbering::takeKeys(store_, numbering::check, count);
        Recordset rows = store_.openTable("tblChecks");
        if (voucher_.cash) return writeCash(rows, firstKey);
        for (qint64 i = 0; i < count; ++i) writeCheck(rows, firstKey + i, voucher_.checks[i]);
    }

    void addCheck(Recordset& rows, qint64 key, Currency amount, const QString& contactId) {
        rows.addNew();
        rows.set("VoucherID", code_);
        rows.set("ZevRef", key);
        rows.set("CheckAmount", amount);
        rows.set("ContactNo", contactId);
        rows.set("Printed", false);
        rows.set("Released", false);
    }

    void writeCheck(Recordset& rows, qint64 key, const CheckLine& check) {
        const QString number = trim(check.number);
        addCheck(rows, key, figure(check.amount), contactIdOf(store_, check.payee));
        if (!number.isEmpty()) {
            rows.set("CheckNo", number);
            rows.set("CheckDate", dateOrNull(check.date));
        }
        // A row without a number cannot be waited for: it is settled.
        rows.set("CheckStatus", number.isEmpty() ? cashWord : "Pending");
        rows.set("Negotiated", number.isEmpty());
        rows.set("CrossCheck", check.isCrossed());
        rows.addLater();
    }

    void writeCash(Recordset& rows, qint64 key) {
        addCheck(rows, key, amount_, contactId_);
        rows.set("CheckNo", cashWord);
        rows.set("CheckDate", date_);
        rows.set("CheckStatus", cashWord);
        rows.set("Negotiated", true);
        rows.set("CrossCheck", false);
        rows.addLater();
    }

    Connection& store_;
    const VoucherDocument& voucher_;
    QString code_;
    QString contactId_;
    QDate date_;
    Currency amount_;
    Boxes boxes_;
};

// Loading

// In the order that they were written in, which is that of the lists.
Recordset rowsOf(Connection& store, const char* table, const char* column, const QString& key) {
    return store.execute(
        {QString("SELECT * FROM %1 WHERE %2 = ? ORDER BY %3").arg(table, column, keyOf(store, table)),
         {trimRight(key)}});
}

PaymentLine paymentOfRow(const Recordset& row) {
    return {row.trimmed("PuchaseID"), formatDate(row.date("PurchaseDate")),
            asAmount(row.currency("PayAmount")), row.trimmed("Particulars"),
            row.flag("DirectPayment") ? "1" : "0"};
}

CheckLine checkOfRow(Connection& store, const Recordset& row) {
    return {row.trimmed("CheckNo"), formatDate(row.date("CheckDate")), asAmount(row.currency("CheckAmount")),
            row.flag("CrossCheck") ? "Cross" : "None", contactNameOf(store, row.trimmed("ContactNo"))};
}

void loadChecks(Connection& store, VoucherDocument& voucher) {
    for (Recordset row = rowsOf(store, "tblChecks", "VoucherID", voucher.code); !row.eof(); row.moveNext()) {
        if (row.trimmed("CheckStatus").toUpper() == "CASH") voucher.cash = true;
        voucher.checks.append(checkOfRow(store, row));
    }
}

void loadPayments(Connection& store, VoucherDocument& voucher) {
    for (Recordset row = rowsOf(store, "tblDisbursementDetails", "VoucherID", voucher.code); !row.eof();
         row.moveNext())
        voucher.payments.append(paymentOfRow(row));
}
}  // namespace

VoucherDocument newVoucher(Connection& store) {
    const QDate today = Clock::today();
    VoucherDocument voucher;
    voucher.serial = numbering::nextSerial(store, numbering::disbursement);
    voucher.code =
        numbering::documentNumber(formatDate(today, "mm"), voucher.serial, formatDate(today, "yyyy"));
    voucher.date = formatDate(today);
    return voucher;
}

LoadedVoucher loadVoucher(Connection& store, const QString& key) {
    LoadedVoucher loaded;
    loaded.document.loaded = StoredState(
        store, {disbursementBook, {"tblDisbursementDetails", "VoucherID"}, {"tblChecks", "VoucherID"}},
        trimRight(key));
    const Recordset row = rowsOf(store, disbursementBook.table, disbursementBook.key, key);
    const QString contactId = row.trimmed("ContactNo");
    loaded.document.addMode = false;
    loaded.document.code = row.trimmed(disbursementBook.key);
    loaded.document.date = formatDate(row.date("VoucherDate"));
    loaded.document.contactName = contactNameOf(store, contactId);
    loaded.document.remarks = row.trimmed("Remarks");
    loaded.contact = contactFigures(store, SupplierBalance, contactId);
    loaded.updatedBy = row.trimmed("UpdatedBy");
    loaded.lastUpdate = formatDate(row.date("DateUpdate"));
    loadPayments(store, loaded.document);
    loadChecks(store, loaded.document);
    return loaded;
}

std::optional<Fault> checkVoucher(Connection& store, const VoucherDocument& voucher) {
    if (auto fault = numberFault(store, voucher)) return fault;
    if (trim(voucher.contactName).isEmpty())
        return Fault{exclamation("No Payee Name!", "Please Select Payee Name!"), "cboCustomer"};
    if (auto fault = totalFault(voucher)) return fault;
    if (!isDate(voucher.date)) return errorFault("Invalid Date Value!", "txtRefDate");
    if (!contactExists(store, voucher.contactName))
        return Fault{exclamation("Does not exist!",
                                 "Payee does not exist, please add this to Contact Master File First..."),
                     "cboCustomer"};
    if (!PaymentsAreOfOneKind(voucher.payments))
        return errorFault("You Cannot Combine Direct Payment and Accounts Payable in One Payment Voucher!",
                          "lvwItems");
    return tallyFault(voucher);
}

Outcome saveVoucher(Connection& store, const VoucherDocument& voucher) {
    try {
        // Checked with the write lock held: of two clerks with one number the second is told so.
        Transaction unit(store);
        const ReadAhead ahead(
            store, {recordFoundQuery(disbursementBook.table, disbursementBook.key, trim(voucher.code)),
                    contactExistsQuery(voucher.contactName), contactIdQuery(voucher.contactName)});
        if (auto fault = checkVoucher(store, voucher)) return *fault;
        if (auto fault = overtakenDocument(store, voucher)) return *fault;
        const Boxes boxes = VoucherSave(store, voucher).run();
        unit.commit();
        return Done{boxes};
    } catch (const StoreError& failure) {
        return Fault{exclamation("Error...", failure.text()), {}};
    } catch (const OverflowError& failure) {
        return Fault{exclamation("Error...", failure.what()), {}};
    }
}
