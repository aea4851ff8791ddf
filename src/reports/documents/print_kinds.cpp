#include "reports/documents/print_kinds.h"

#include "foundation/setting_files.h"
#include "platform/masks.h"
#include "platform/store/connection.h"
#include "reports/checks/prtVoucher.h"
#include "reports/documents/prtDelivery.h"
#include "reports/documents/prtPurchase.h"
#include "reports/documents/prtSalesInvoice.h"

namespace {
void readReceiptSettings() {
    ReadReceiptIni();
    ReadReceiptPrinterIni();
}

constexpr PrintKind kinds[] = {{.code = "DR",
                                .table = "tblSalesMaster",
                                .number = "RefNo",
                                .date = "RefDate",
                                .numberHead = "Delivery Receipt No.",
                                .dateHead = "Delivery Date",
                                .printed = "Printed Delivery",
                                .unprinted = "UnPrinted Delivery",
                                .report = deliveryReport,
                                .tagging = deliveryTagging,
                                .readSettings = readReceiptSettings},
                               {.code = "PO",
                                .table = "tblPurchaseMaster",
                                .number = "PurchaseNo",
                                .date = "PurchaseDate",
                                .numberHead = "Purchase Order No.",
                                .dateHead = "Purchase Date",
                                .printed = "Printed Purchase",
                                .unprinted = "UnPrinted Purchase",
                                .report = purchaseReport,
                                .tagging = purchaseTagging},
                               {.code = "CV",
                                .table = "tblDisbursementMaster",
                                .number = "VoucherNo",
                                .date = "VoucherDate",
                                .numberHead = "Voucher No.",
                                .dateHead = "Voucher Date",
                                .printed = "Printed Voucher",
                                .unprinted = "UnPrinted Voucher",
                                .report = voucherReport,
                                .tagging = voucherTagging,
                                .hasChecks = true},
                               {.code = "SI",
                                .table = "tblReceiptMaster",
                                .number = "PayNo",
                                .date = "PaymentDate",
                                .numberHead = "Invoice No.",
                                .dateHead = "Invoice Date",
                                .printed = "Printed Payment",
                                .unprinted = "UnPrinted Payment",
                                .report = salesInvoiceReport,
                                .tagging = salesInvoiceTagging}};

int storedFlag(const QString& flag) {
    if (flag == "True") return -1;
    return flag == "False" ? 0 : flag.toInt();
}

Sql listOf(const PrintKind& kind, const QString& flag) {
    return {QString("SELECT %1, %2 FROM %3 WHERE Printed = ? ORDER BY %1 ASC")
                .arg(kind.number, kind.date, kind.table),
            {storedFlag(flag)}};
}
}  // namespace

const PrintKind* findPrintKind(const QString& code) {
    const auto* kind = std::ranges::find_if(kinds, [&](const PrintKind& row) { return code == row.code; });
    return kind == std::end(kinds) ? nullptr : kind;
}

QString laterPrintKind(const QString& code) { return "Print " + code; }

QList<QStringList> documentsToPrint(Connection& store, const PrintKind& kind, const QString& flag) {
    Recordset documents = store.execute(listOf(kind, flag));
    QList<QStringList> rows;
    rows.reserve(documents.rowCount());
    for (; !documents.eof(); documents.moveNext())
        rows += {documents.text(kind.number), formatDate(documents.date(kind.date), "mm-dd-yyyy")};
    return rows;
}
