#include "sales/receipt_document.h"

#include "books/balances.h"
#include "books/numbering.h"
#include "books/record_lock.h"
#include "documents/check_status.h"
#include "foundation/session.h"
#include "foundation/shared_routines.h"
#include "masters/master_records.h"
#include "platform/clock.h"
#include "platform/masks.h"
#include "platform/parsing.h"
#include "platform/progress_scope.h"
#include "platform/store/read_ahead.h"
#include "platform/store/transaction.h"

namespace {
// A payment number is a plain number.
qint64 numberOf(const QString& code) {
    bool isNumber = false;
    const qint64 number = trim(code).toLongLong(&isNumber);
    if (!isNumber) throw StoreError(StoreError::typeMismatch, "Type mismatch");
    return number;
}

std::optional<Fault> headFault(Connection& store, const ReceiptDocument& receipt) {
    if (trim(receipt.code).isEmpty())
        return Fault{exclamation("No Code!", "Please Enter Payment No.!"), "txtCode"};
    if (!isDate(receipt.date)) return errorFault("Invalid Payment Date Value!", "txtPayDate");
    if (trim(receipt.contactName).isEmpty())
        return Fault{exclamation("No Customer!", "Please Select Customer!"), "cboCustomer"};
    if (!contactExists(store, receipt.contactName))
        return Fault{exclamation("Does not exist!",
                                 "Customer Does Not Exist, Please Add This To Customer Master File..."),
                     "cboCustomer"};
    return std::nullopt;
}

// One save: the receipt, and what all its steps share.
class ReceiptSave {
  public:
    ReceiptSave(Connection& store, const ReceiptDocument& receipt, Progress& progress)
        : store_(store), receipt_(receipt), progress_(progress), number_(numberOf(receipt.code)) {}

    Outcome run() {
        Transaction unit(store_);
        if (auto overtaken = overtakenDocument(store_, receipt_)) return *overtaken;
        if (auto refused = writeMaster()) return *refused;
        if (auto overtaken = writeDetails()) return *overtaken;
        unit.commit();
        return Done{boxes_};
    }

  private:
    Recordset masterRow() {
        if (!receipt_.addMode) return store_.openTable("tblReceiptMaster", {"WHERE PayNo = ?", {number_}});
        Recordset row = store_.openTable("tblReceiptMaster");
        row.addNew();
        row.set("PayNo", number_);
        return row;
    }

    // A number that another clerk has typed since the test meets the key here.
    std::optional<Fault> writeMaster() {
        Recordset row = masterRow();
        row.set("CustomerNo", contactIdOf(store_, receipt_.contactName));
        row.set("PaymentDate", *parseDate(receipt_.date));
        row.set("PaymentAmount", receiptTotal(receipt_.lines));
        row.set("TotalDiscAmount", receiptDiscount(receipt_.lines));
        row.set("PayRemarks", trim(receipt_.remarks));
        row.set("Printed", false);
        row.set("RecordLock", false);
        row.set("UpdatedBy", session().CurrentUserCode);
        row.set("DateUpdate", Clock::now());
        try {
            row.update();
        } catch (const StoreError& failure) {
            if (failure.number() != StoreError::refused) throw;
            return Fault{
                saveErrorBox(failure, "Reference No. already exists, please edit and assign another number."),
                "txtCode"};
        }
        return std::nullopt;
    }

    std::optional<Fault> overtaken(const ReceiptLine& line) {
        auto fault = overtakenLine(store_, line);
        if (fault) fault->focus = "lvwItems";
        return fault;
    }

    // Of all lines, before one is written.
    std::optional<Fault> overtaken() {
        const ReadAhead ahead(store_, overtakenReads(receipt_.lines));
        for (const ReceiptLine& line : receipt_.lines)
            if (auto fault = overtaken(line)) return fault;
        return std::nullopt;
    }

    std::optional<Fault> writeDetails() {
        if (!receipt_.addMode)
            DeleteWhereValue(store_, receipt_.code, "tblReceiptDetails", "PayCode", "number");
        progress_.begin("Please Wait While System Computes is Posting Receivable Balances...",
                        receipt_.lines.size());
        if (auto fault = overtaken()) return fault;
        qint64 key = numbering::takeKeys(store_, numbering::receipt, receipt_.lines.size());
        Recordset details = store_.openTable("tblReceiptDetails");
        QStringList orders;
        qint64 written = 0;
        for (const ReceiptLine& line : receipt_.lines) {
            // Of two lines of one order the second counts on what the first one leaves.
            if (orders.contains(trim(line.reference), Qt::CaseInsensitive))
                if (auto fault = overtaken(line)) return fault;
            writeLine(details, line, key++);
            orders += trim(line.reference);
            progress_.setValue(++written);
        }
        UpdateSalesBalances(store_, orders);
        return std::nullopt;
    }

    void writeLine(Recordset& details, const ReceiptLine& line, qint64 key) {
        const bool byCheck = !line.checkNo.isEmpty();
        details.addNew();
        details.set("ZevRef", key);
        details.set("PayCode", number_);
        details.set("Reference", trim(line.reference));
        details.set("Discount", numberOrZero(line.discount));
        details.set("DiscountAmount", discountAmount(line));
        details.set("Amount", numberOrZero(line.netAmount));
        if (byCheck) {
            details.set("CheckNo", line.checkNo);
            details.set("CheckDate", parseDate(line.checkDate).value_or(QDate()));
        }
        details.set("CheckStatus", byCheck ? check::pending : check::cash);
        details.set("Negotiated", !byCheck);
        details.addLater();
    }

    Connection& store_;
    const ReceiptDocument& receipt_;
    Progress& progress_;
    qint64 number_;
    Boxes boxes_;
};

ReceiptLine lineOfRow(const Recordset& row) {
    return {row.trimmed("Reference"),
            formatDate(row.date("RefDate")),
            formatNumber(row.currency("TotalAmount"), mask::amount),
            formatNumber(row.currency("Discount"), mask::discount),
            formatNumber(row.currency("Amount"), mask::amount),
            row.trimmed("CheckNo"),
            formatDate(row.date("CheckDate")),
            row.trimmed("Remarks")};
}

QList<ReceiptLine> storedLines(Connection& store, qint64 number) {
    QList<ReceiptLine> lines;
    for (Recordset rows = store.execute(
             {"SELECT tblReceiptDetails.*, tblSalesMaster.RefDate, tblSalesMaster.TotalAmount,"
              " tblSalesMaster.Remarks FROM tblReceiptDetails LEFT JOIN tblSalesMaster"
              " ON tblReceiptDetails.Reference = tblSalesMaster.RefNo WHERE tblReceiptDetails.PayCode = ?"
              " ORDER BY tblReceiptDetails.ZevRef",
              {number}});
         !rows.eof(); rows.moveNext())
        lines.append(lineOfRow(rows));
    return lines;
}
}  // namespace

ReceiptDocument newReceipt(Connection& store) {
    ReceiptDocument receipt;
    receipt.code = QString::number(numbering::nextKey(store, numbering::payment));
    receipt.date = formatDate(Clock::today());
    return receipt;
}

LoadedReceipt loadReceipt(Connection& store, const QString& code) {
    const qint64 number = numberOf(code);
    LoadedReceipt loaded;
    loaded.document.loaded = StoredState(store, {receiptBook, {"tblReceiptDetails", "PayCode"}}, number);
    const Recordset row = store.execute({"SELECT * FROM tblReceiptMaster WHERE PayNo = ?", {number}});
    const QString contactId = row.trimmed("CustomerNo");
    loaded.document.addMode = false;
    loaded.document.code = QString::number(row.integer("PayNo"));
    loaded.document.date = formatDate(row.date("PaymentDate"));
    loaded.document.contactName = contactNameOf(store, contactId);
    loaded.document.remarks = row.trimmed("PayRemarks");
    loaded.document.lines = storedLines(store, number);
    loaded.contact = contactFigures(store, CustomerBalance, contactId);
    loaded.updatedBy = row.trimmed("UpdatedBy");
    loaded.lastUpdate = formatDate(row.date("DateUpdate"));
    return loaded;
}

std::optional<Fault> ValidateReceipt(Connection& store, const ReceiptDocument& receipt) {
    const Currency total = receiptTotal(receipt.lines);
    if (auto fault = headFault(store, receipt)) return fault;
    if (receipt.addMode && RecordFound(store, "tblReceiptMaster", "PayNo", numberOf(receipt.code)))
        return Fault{exclamation("Duplicate!", "Duplicate Payment No.! Please Assign Another!"), "txtCode"};
    if (receipt.lines.isEmpty())
        return errorFault("There is No Payment Made for this Record! Please Add D.R. to Post Payment!",
                          "cmdAdd");
    if (total <= Currency()) return errorFault("Total Amount is Less Than or Equal Zero!", "lvwItems");
    return std::nullopt;
}

Outcome saveReceipt(Connection& store, const ReceiptDocument& receipt, Progress& progress) {
    try {
        if (auto fault = ValidateReceipt(store, receipt)) return *fault;
        const ProgressScope shown(progress);
        return ReceiptSave(store, receipt, progress).run();
    } catch (const StoreError& failure) {
        return Fault{exclamation("Error...", failure.text()), {}};
    } catch (const OverflowError& failure) {
        return Fault{exclamation("Error...", failure.what()), {}};
    }
}
