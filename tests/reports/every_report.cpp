#include "reports/every_report.h"

#include "platform/progress.h"
#include "platform/store/connection.h"
#include "reports/audit/prtAudit.h"
#include "reports/audit/prtDiscrepancy.h"
#include "reports/checks/check_report.h"
#include "reports/checks/due_checks.h"
#include "reports/checks/prtVoucher.h"
#include "reports/documents/prtDelivery.h"
#include "reports/documents/prtPurchase.h"
#include "reports/documents/prtSalesInvoice.h"
#include "reports/inventory/prtReorder.h"
#include "reports/inventory/prtStockCard.h"
#include "reports/journals/transaction_reports.h"
#include "reports/labels/prtBarCode.h"
#include "reports/lists/prtContactList.h"
#include "reports/lists/prtItemList.h"
#include "reports/logbooks/log_book_reports.h"
#include "reports/outstanding/outstanding_reports.h"
#include "reports/quotations/prtQuotation.h"
#include "reports/quotations/prtSalesQuota.h"
#include "tools/calculator/adding_machine.h"
#include "tools/calculator/prtTape.h"
#include "tools/search/search_report.h"

namespace {
using Made = std::optional<ReportJobParts>;

// The document with the most lines.
QString longest(Connection& store, const char* details, const char* reference) {
    const QString byLines =
        "SELECT %2 AS Number, COUNT(*) AS Lines FROM %1 GROUP BY %2 ORDER BY Lines DESC, %2 DESC";
    const Recordset row = store.execute(byLines.arg(QString(details), QString(reference)));
    return row.eof() ? QString() : row.text("Number");
}

const KnownReport documents[] = {
    {"prtDelivery",
     [](Connection& store) { return deliveryReport(store, longest(store, "tblSalesDetails", "Reference")); }},
    {"prtPurchase",
     [](Connection& store) {
         return purchaseReport(store, longest(store, "tblPurchaseDetails", "Reference"));
     }},
    {"prtSalesInvoice",
     [](Connection& store) {
         return salesInvoiceReport(store, longest(store, "tblReceiptDetails", "PayCode"));
     }},
    {"prtVoucher",
     [](Connection& store) {
         return voucherReport(store, longest(store, "tblDisbursementDetails", "VoucherID"));
     }},
    {"prtCheckOnly",
     [](Connection& store) {
         return checkReport(store, prtCheckOnly(), longest(store, "tblChecks", "VoucherID"));
     }},
    {"prtCheckOnlySmall", [](Connection& store) {
         return checkReport(store, prtCheckOnlySmall(), longest(store, "tblChecks", "VoucherID"));
     }}};

QStringList itemCodes(Connection& store) {
    QStringList codes;
    for (Recordset item = store.execute("SELECT ItemCode FROM tblItemMaster ORDER BY ItemCode LIMIT 49");
         !item.eof(); item.moveNext())
        codes += item.text("ItemCode");
    return codes;
}

const KnownReport lists[] = {
    {"prtReceivableDueChecks",
     [](Connection& store) {
         return dueChecksReport(store, prtReceivableDueChecks, checksDue(prtReceivableDueChecks));
     }},
    {"prtPayableDueChecks",
     [](Connection& store) {
         return dueChecksReport(store, prtPayableDueChecks, checksDue(prtPayableDueChecks));
     }},
    {"prtContactList",
     [](Connection& store) {
         return contactListReport(store, "SELECT * FROM tblContactMaster ORDER BY ContactName", "All");
     }},
    {"prtItemList",
     [](Connection& store) {
         return itemListReport(store, "SELECT * FROM tblItemMaster ORDER BY Description", "All");
     }},
    {"prtReorder", reorderReport},
    {"prtStockCard",
     [](Connection& store) {
         return stockCardReport(store,
                                {.allDays = true, .item = longest(store, "tblStockValuation", "ItemCode")});
     }},
    {"prtDiscrepancy", [](Connection& store) { return discrepancyReport(store, Progress::none()); }},
    {"prtBarCode", [](Connection& store) { return barCodeReport(store, itemCodes(store)); }},
    {"prtSalesQuota", [](Connection& store) { return salesQuotaReport(store, {.allDays = true}); }},
    {"prtQuotation", [](Connection& store) {
         return quotationReport(
             store,
             {.selection = quotationOrders().first(),
              .contact = store.execute("SELECT MIN(ContactName) AS ID FROM tblContactMaster").text("ID")});
     }}};

// The print-outs of the tools.
Made found(Connection& store, const QString& kind, const QString& journal) {
    return searchReport(store, std::get<Search>(prepareSearch({kind, journal, {}, {}, true})));
}

const KnownReport tools[] = {
    {"search of items", [](Connection& store) { return found(store, "Inquire Item", {}); }},
    {"search of contacts", [](Connection& store) { return found(store, "Inquire Contact Balance", {}); }},
    {"search of sales",
     [](Connection& store) { return found(store, "Inquire Transaction Balance", "Sales Journal"); }},
    {"search of vouchers",
     [](Connection& store) { return found(store, "Inquire Transaction Balance", "Disbursement Journal"); }},
    {"tape", [](Connection&) {
         return tapeReport({.lines = {"1,250.00 +", "-37.50 -", "1,212.50 ="}, .lastTotal = {}});
     }}};

PrintRequest ofAllDays(const QString& kind, const QString& selection) {
    return {.kind = kind, .selection = selection, .allDays = true};
}
}  // namespace

std::vector<KnownReport> everyReport() {
    std::vector<KnownReport> all(std::begin(documents), std::end(documents));
    all.insert(all.end(), std::begin(lists), std::end(lists));
    all.insert(all.end(), std::begin(tools), std::end(tools));
    for (const QString& book : auditedBooks())
        all.push_back({book, [book](Connection& store) { return auditReport(store, ofAllDays({}, book)); }});
    for (const QString kind : {"S", "R", "P", "D", "PROFIT"})
        for (const QString option : {"optSummary", "optDetailed"})
            all.push_back({kind + ' ' + option, [=](Connection& store) {
                               return transactionReport(store, ofAllDays(kind, option));
                           }});
    for (const QString kind : {"R", "P"})
        for (const QString option : {"optSummary", "optDetailed"})
            all.push_back({"outstanding " + kind + ' ' + option, [=](Connection& store) {
                               return outstandingReport(store, ofAllDays(kind, option));
                           }});
    for (const QString kind : {"R", "P"})
        all.push_back({"log book " + kind,
                       [=](Connection& store) { return logBookReport(store, ofAllDays(kind, {})); }});
    return all;
}
