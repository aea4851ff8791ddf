#include "reports/journals/transaction_reports.h"

#include "books/stock_valuation.h"
#include "platform/box.h"
#include "platform/progress_scope.h"
#include "platform/ui/frmStatus.h"
#include "reports/journals/payment_discount.h"
#include "reports/journals/transaction_layouts.h"
#include "reports/profitability/profitability_events.h"
#include "reports/profitability/profitability_layouts.h"

#include <algorithm>
#include <array>

namespace {
using Events = ReportEvents (*)(Connection& store, const std::optional<Period>& period);

struct JournalReport {
    const char* kind;
    const char* option;
    const ReportLayout& (*layout)();
    const char* title;
    const char* rows;
    const char* dateColumn;
    const char* order;
    Events events = nullptr;
    std::array<const char*, 3> heads = {};  // of number, contact and remarks, where the list has none
    const char* processing = nullptr;  // of a report that rests on the costing: what the status screen says
};

// What a document is worth after the discount that its payment was given.
ReportEvents netOfDocuments(Connection& store, const std::optional<Period>& period) {
    return {{on(SectionKind::Detail),
             [discounts = discountsOfSales(store, period)](const ReportSource& row, SectionFields& fields) {
                 fields.setFigure("txtAmount", row.currency("TotalAmount") -
                                                   discounts.value(discountKey(row.text("RefNo"))));
             }}};
}

// The discount is that of all sales of the item, whatever the period.
ReportEvents netOfItems(Connection& store, const std::optional<Period>&) {
    return {{on(SectionKind::Detail),
             [discounts = discountsOfItems(store)](const ReportSource& row, SectionFields& fields) {
                 const Currency discount = discounts.value(discountKey(row.text("ItemID")));
                 fields.setFigure("txtDiscount", discount);
                 fields.setFigure("txtNetTotal", row.currency("SumTotal") - discount);
             }}};
}

constexpr const char* processingProfit = "System is Processing Profitability Report...";
constexpr const char* byContact =
    " GROUP BY tblContactMaster.ContactName, tblContactMaster.TelNo, tblContactMaster.Address"
    " ORDER BY tblContactMaster.ContactName, tblContactMaster.TelNo, tblContactMaster.Address";

constexpr const char* salesOfContacts =
    "SELECT tblContactMaster.ContactName, tblSalesMaster.* FROM tblContactMaster INNER JOIN tblSalesMaster "
    "ON "
    "tblContactMaster.ContactID = tblSalesMaster.ContactNo";

constexpr const char* salesByDay = " ORDER BY tblSalesMaster.RefDate, tblSalesMaster.RefNo";

const JournalReport reports[] = {
    {"S", "optSummary", prtSalesReport, "Sales Summary Report", salesOfContacts, "tblSalesMaster.RefDate",
     salesByDay, netOfDocuments},
    {"S", "optDetailed", prtSalesDetails, "Sales Details Report",
     "SELECT tblSalesDetails.ItemID, tblSalesDetails.Unit, SUM(tblSalesDetails.Served) AS SumQty, "
     "SUM(tblSalesDetails.Total) AS SumTotal, tblItemMaster.Description FROM (tblSalesDetails INNER JOIN "
     "tblSalesMaster ON tblSalesDetails.Reference = tblSalesMaster.RefNo) INNER JOIN tblItemMaster ON "
     "tblSalesDetails.ItemID = tblItemMaster.ItemCode",
     "tblSalesMaster.RefDate",
     " GROUP BY tblSalesDetails.Unit, tblSalesDetails.ItemID, tblItemMaster.Description"
     " ORDER BY tblSalesDetails.ItemID, tblSalesDetails.Unit",
     netOfItems},
    {"R", "optSummary", prtReceiptSummary, "Payment Receipt Summary Report",
     "SELECT SUM(tblReceiptMaster.PaymentAmount) AS SumTotal, SUM(tblReceiptMaster.TotalDiscAmount) AS "
     "SumDiscount, tblContactMaster.ContactName, tblContactMaster.TelNo, tblContactMaster.Address FROM "
     "tblReceiptMaster INNER JOIN tblContactMaster ON tblReceiptMaster.CustomerNo = "
     "tblContactMaster.ContactID",
     "tblReceiptMaster.PaymentDate", byContact},
    {"R", "optDetailed", prtReceipt, "Payments Receipt Details Report",
     "SELECT tblContactMaster.ContactName, tblReceiptMaster.* FROM tblContactMaster INNER JOIN "
     "tblReceiptMaster "
     "ON tblContactMaster.ContactID = tblReceiptMaster.CustomerNo",
     "tblReceiptMaster.PaymentDate", " ORDER BY tblReceiptMaster.PaymentDate, tblReceiptMaster.PayNo"},
    {"P",
     "optSummary",
     prtTransactions,
     "Purchases Summary Report",
     "SELECT tblContactMaster.ContactName, tblPurchaseMaster.PurchaseNo AS Number, "
     "tblPurchaseMaster.PurchaseDate AS Day, tblPurchaseMaster.PurchaseAmount AS Amount, "
     "tblPurchaseMaster.Remarks FROM tblContactMaster INNER JOIN tblPurchaseMaster ON "
     "tblContactMaster.ContactID = tblPurchaseMaster.ContactNo",
     "tblPurchaseMaster.PurchaseDate",
     " ORDER BY tblPurchaseMaster.PurchaseDate, tblPurchaseMaster.PurchaseNo",
     nullptr,
     {"P.O. No.", "Supplier Name", "Particulars"}},
    {"P", "optDetailed", prtTransactionDetails, "Purchase Details Report",
     "SELECT tblPurchaseDetails.ItemID, tblPurchaseDetails.Unit, SUM(tblPurchaseDetails.Delivered) AS "
     "SumQty, "
     "SUM(tblPurchaseDetails.Total) AS SumTotal, tblItemMaster.Description FROM (tblPurchaseDetails INNER "
     "JOIN "
     "tblPurchaseMaster ON tblPurchaseDetails.Reference = tblPurchaseMaster.PurchaseNo) INNER JOIN "
     "tblItemMaster ON tblPurchaseDetails.ItemID = tblItemMaster.ItemCode",
     "tblPurchaseMaster.PurchaseDate",
     " GROUP BY tblPurchaseDetails.Unit, tblPurchaseDetails.ItemID, tblItemMaster.Description"
     " ORDER BY tblPurchaseDetails.ItemID, tblPurchaseDetails.Unit"},
    {"D", "optSummary", prtTransactionPayments, "Disbursement Summary Report",
     "SELECT SUM(tblDisbursementMaster.VoucherAmount) AS SumTotal, tblContactMaster.ContactName, "
     "tblContactMaster.TelNo, tblContactMaster.Address FROM tblDisbursementMaster INNER JOIN "
     "tblContactMaster "
     "ON tblDisbursementMaster.ContactNo = tblContactMaster.ContactID",
     "tblDisbursementMaster.VoucherDate", byContact},
    {"D",
     "optDetailed",
     prtTransactions,
     "Disbursement Details Report",
     "SELECT tblContactMaster.ContactName, tblDisbursementMaster.VoucherNo AS Number, "
     "tblDisbursementMaster.VoucherDate AS Day, tblDisbursementMaster.VoucherAmount AS Amount, "
     "tblDisbursementMaster.Remarks FROM tblContactMaster INNER JOIN tblDisbursementMaster ON "
     "tblContactMaster.ContactID = tblDisbursementMaster.ContactNo",
     "tblDisbursementMaster.VoucherDate",
     " ORDER BY tblDisbursementMaster.VoucherDate, tblDisbursementMaster.VoucherNo",
     nullptr,
     {"Voucher No.", "Payee Name", "Remarks"}},
    {"PROFIT",
     "optSummary",
     prtProfitabilitySummary,
     "Sales Profitability Report",
     salesOfContacts,
     "tblSalesMaster.RefDate",
     salesByDay,
     profitOfSales,
     {},
     processingProfit},
    {"PROFIT",
     "optDetailed",
     prtProfitabilityDetails,
     "Sales Profitability Report",
     "SELECT tblSalesDetails.*, tblSalesMaster.RefNo, tblSalesMaster.RefDate, tblSalesMaster.Remarks, "
     "tblSalesMaster.TotalAmount, tblItemMaster.Description FROM (tblSalesMaster INNER JOIN tblSalesDetails "
     "ON tblSalesMaster.RefNo = tblSalesDetails.Reference) LEFT OUTER JOIN tblItemMaster ON "
     "tblSalesDetails.ItemID = tblItemMaster.ItemCode",
     "tblSalesMaster.RefDate",
     " ORDER BY tblSalesDetails.ItemID, tblSalesMaster.RefDate, tblSalesMaster.RefNo",
     profitOfLines,
     {},
     processingProfit}};

const JournalReport* asked(const PrintRequest& request) {
    const auto* report = std::ranges::find_if(reports, [&](const JournalReport& row) {
        return request.kind == row.kind && request.selection == row.option;
    });
    return report == std::end(reports) ? nullptr : report;
}

QHash<QString, QString> labelsOf(const JournalReport& report) {
    QHash<QString, QString> labels{{"lblTitle", report.title}};
    const char* const names[] = {"lblNumber", "lblContactName", "lblRemarks"};
    for (std::size_t i = 0; i < report.heads.size(); ++i)
        if (report.heads[i]) labels.insert(names[i], report.heads[i]);
    return labels;
}
}  // namespace

std::optional<Fault> transactionFault(Connection&, const PrintRequest& request) {
    return periodFault(request, invalidDateEntered);
}

static std::optional<ReportJobParts> run(Connection& store, const JournalReport& report,
                                         const std::optional<Period>& period) {
    return runOfPeriod(store,
                       {.layout = report.layout(),
                        .rows = report.rows,
                        .dateColumn = report.dateColumn,
                        .order = report.order,
                        .events = report.events ? report.events(store, period) : ReportEvents(),
                        .labels = labelsOf(report),
                        .processing = report.processing},
                       period);
}

// The ledger is costed anew, so that what left a document since the last end of day costs nothing here.
static std::optional<ReportJobParts> runAfterCosting(Connection& store, const JournalReport& report,
                                                     const std::optional<Period>& period) {
    frmStatus status;
    RecomputeStockValuation(store, status);
    const ProgressScope scope(status, report.processing, 0);
    return run(store, report, period);
}

std::optional<ReportJobParts> transactionReport(Connection& store, const PrintRequest& request) {
    const JournalReport* report = asked(request);
    if (!report) return {};
    return (report->processing ? runAfterCosting : run)(store, *report, periodOf(request));
}

QList<const ReportLayout*> transactionLayouts() {
    QList<const ReportLayout*> layouts;
    for (const JournalReport& report : reports) layouts += &report.layout();
    return layouts;
}
