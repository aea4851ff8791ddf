#include "books/discrepancies.h"

#include "platform/progress_scope.h"
#include "platform/store/connection.h"

namespace modDiscrepancy {

const DiscrepancyCheck CheckSalesOrders{.waiting = "Please Wait While Checks for Sales Order Discrepancy...",
                                        .title = "Sales Discrepancy Report",
                                        .heading = "Sales Order with No Item Details :",
                                        .table = "tblSalesMaster",
                                        .suspects = nullptr,
                                        .reference = "RefNo",
                                        .masterColumn = "Reference",
                                        .masterTable = "tblSalesDetails",
                                        .label = "DR No. = ",
                                        .number = "RefNo"};

// No line has a RefID. The store says so as soon as a line without a price is there to be looked at.
const DiscrepancyCheck CheckSalesDetails{
    .waiting = "Please Wait While Checks for Sales Order Details Discrepancy...",
    .title = "Sales Details Discrepancy Report",
    .heading = "Item Served to Customer where Unit Price equal to Zero :",
    .table = "tblSalesDetails",
    .suspects = "Served <> 0 AND UnitPrice <= 0",
    .reference = "RefID",
    .masterColumn = "RefNo",
    .masterTable = "tblSalesMaster",
    .label = "DR No. = ",
    .number = "Reference",
    .detailLabel = "Item No. = ",
    .detail = "ItemID"};

const DiscrepancyCheck CheckPurchaseOrders{
    .waiting = "Please Wait While Checks for Purchase Order Discrepancy...",
    .title = "Purchase Discrepancy Report",
    .heading = "Purchase Order with No Item Details :",
    .table = "tblPurchaseMaster",
    .suspects = nullptr,
    .reference = "PurchaseNo",
    .masterColumn = "Reference",
    .masterTable = "tblPurchaseDetails",
    .label = "PO No. = ",
    .number = "PurchaseNo"};

const DiscrepancyCheck CheckPurchaseDetails{
    .waiting = "Please Wait While Checks for Purchase Order Details Discrepancy...",
    .title = "Purchase Details Discrepancy Report",
    .heading = "Item Received from Supplier where Unit Price equal to Zero :",
    .table = "tblPurchaseDetails",
    .suspects = "Delivered <> 0 AND UnitPrice <= 0",
    .reference = "RefID",
    .masterColumn = "RefNo",
    .masterTable = "tblSalesMaster",
    .label = "DR No. = ",
    .number = "Reference",
    .detailLabel = "Item No. = ",
    .detail = "ItemID"};

const DiscrepancyCheck CheckPaymentReceipts{
    .waiting = "Please Wait While Checks for Payment Receipt Discrepancy...",
    .title = "Payment Receipt Discrepancy Report",
    .heading = "Payment Receipt with No Item Details :",
    .table = "tblReceiptMaster",
    .suspects = nullptr,
    .reference = "PayNo",
    .masterColumn = "PayCode",
    .masterTable = "tblReceiptDetails",
    .label = "Receipt No. = ",
    .number = "PayNo"};

const DiscrepancyCheck CheckReceiptDetails{
    .waiting = "Please Wait While Checks for Payment Receipt Details Discrepancy...",
    .title = "Payment Receipt Details Discrepancy Report",
    .heading = "Payment Reference Not Found in Sales Order :",
    .table = "tblReceiptDetails",
    .suspects = nullptr,
    .reference = "Reference",
    .masterColumn = "RefNo",
    .masterTable = "tblSalesMaster",
    .label = "DR No. = ",
    .number = "Reference",
    .detailLabel = "Payment No. = ",
    .detail = "PayCode"};

const DiscrepancyCheck CheckDisbursements{
    .waiting = "Please Wait While Checks for Disbursement Discrepancy...",
    .title = "Disbursement Discrepancy Report",
    .heading = "Disbursement with No Item Details :",
    .table = "tblDisbursementMaster",
    .suspects = nullptr,
    .reference = "VoucherNo",
    .masterColumn = "VoucherID",
    .masterTable = "tblDisbursementDetails",
    .label = "Voucher No. = ",
    .number = "VoucherNo"};

QList<const DiscrepancyCheck*> discrepancyChecks() {
    return {&CheckSalesOrders,     &CheckSalesDetails,   &CheckPurchaseOrders, &CheckPurchaseDetails,
            &CheckPaymentReceipts, &CheckReceiptDetails, &CheckDisbursements};
}

namespace {
constexpr const char* lineEnd = "\r\n";

bool hasSuspects(Connection& store, const DiscrepancyCheck& check) {
    const QString any = "SELECT COUNT(*) AS Suspects FROM %1 WHERE %2";
    return store.execute(any.arg(QString(check.table), QString(check.suspects))).integer("Suspects") > 0;
}

Recordset rowsAtFault(Connection& store, const DiscrepancyCheck& check) {
    const QString detail = check.detail ? QString(", suspect.") + check.detail + " AS Detail" : QString();
    const QString suspects = check.suspects ? QString(check.suspects) + " AND " : QString();
    return store.execute("SELECT suspect." + QString(check.number) + " AS Number" + detail + " FROM " +
                         QString(check.table) + " AS suspect WHERE " + suspects +
                         "NOT EXISTS (SELECT 1 FROM " + QString(check.masterTable) +
                         " AS other WHERE other." + QString(check.masterColumn) + " = suspect." +
                         QString(check.reference) + ") ORDER BY suspect." + QString(check.number) +
                         (check.detail ? QString(", suspect.") + check.detail : QString()));
}

QString lineOf(const DiscrepancyCheck& check, const Recordset& row) {
    const QString line = check.label + row.text("Number");
    return check.detail ? line + ' ' + check.detailLabel + row.text("Detail") : line;
}
}  // namespace

QString headOf(const DiscrepancyCheck& check) {
    return check.title + QString(lineEnd) + check.heading + lineEnd;
}

QString findingsOf(Connection& store, const DiscrepancyCheck& check, Progress& progress) {
    const ProgressScope scope(progress, check.waiting, 0);
    QString lines;
    if (!check.suspects || hasSuspects(store, check))
        for (Recordset row = rowsAtFault(store, check); !row.eof(); row.moveNext())
            lines += lineOf(check, row) + lineEnd;
    return headOf(check) + (lines.isEmpty() ? QString("No Error to Report...") : lines);
}

}  // namespace modDiscrepancy
