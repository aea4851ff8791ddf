#include "reports/journals/transaction_reports.h"

#include "books/stock_valuation.h"
#include "platform/box.h"
#include "platform/progress_scope.h"
#include "platform/ui/frmStatus.h"
#include "reports/journals/item_sums.h"
#include "reports/journals/payment_discount.h"
#include "reports/journals/transaction_layouts.h"
#include "reports/profitability/profitability_events.h"
#include "reports/profitability/profitability_figures.h"
#include "reports/profitability/profitability_layouts.h"

#include <algorithm>
#include <array>

namespace {
using Events = ReportEvents (*)(Connection& store, const std::optional<Period>& period);
using Worked = std::unique_ptr<ReportSource> (*)(Connection& store, const std::optional<Period>& period);

struct JournalReport {
    const char* kind;
    const char* option;
    const ReportLayout& (*layout)();
    const char* title;
    const char* rows;  // null: they are worked out
    const char* dateColumn;
    const char* order;
    Events events = nullptr;
    std::array<const char*, 3> heads = {};  // of number, contact and remarks, where the list has none
    const char* processing = nullptr;  // of a report that rests on the costing: what the status screen says
    Worked worked = nullptr;
};

// What a document is worth after the discount that its payment was given.
ReportEvents netOfDocuments(Connection& store, const std::optional<Period>& period) {
    return {{on(SectionKind::Detail),
             [discounts = discountsOfSales(store, period)](const ReportSource& row, SectionFields& fields) {
                 fields.setFigure("txtAmount", row.currency("TotalAmount") - discounts.of(row.key("RefNo")));
             }}};
}

// The discount is that of all sales of the item, whatever the period.
ReportEvents netOfItems(Connection& store, const std::optional<Period>&) {
    return {{on(SectionKind::Detail),
             [discounts = discountsOfItems(store)](const ReportSource& row, SectionFields& fields) {
                 const Currency discount = discounts.of(row.text("ItemID"));
                 fields.setFigure("txtDiscount", discount);
                 fields.setFigure("txtNetTotal", row.currency("SumTotal") - discount);
             }}};
}

std::unique_ptr<ReportSource> soldItems(Connection& store, const std::optional<Period>& period) {
    return sumsOfItems(store, DocumentLines::Side::Sales, wherePeriod("RefDate", period));
}

std::unique_ptr<ReportSource> boughtItems(Connection& store, const std::optional<Period>& period) {
    return sumsOfItems(store, DocumentLines::Side::Purchases, wherePeriod("PurchaseDate", period));
}

constexpr const char* processingProfit = "System is Processing Profitability Report...";
constexpr const char* byContact =
    " GROUP BY tblContactMaster.ContactName, tblContactMaster.TelNo, tblContactMaster.Address"
    " ORDER BY tblContactMaster.ContactName, tblContactMaster.TelNo, tblContactMaster.Address";

constexpr const char* salesOfContacts =
    "SELECT tblContactMaster.ContactName, tblSalesMaster.RefNo, tblSalesMaster.RefDate, "
    "tblSalesMaster.TotalAmount, tblSalesMaster.Remarks FROM tblContactMaster INNER JOIN tblSalesMaster ON "
    "tblContactMaster.ContactID = tblSalesMaster.ContactNo";

constexpr const char* salesByDay = " ORDER BY tblSalesMaster.RefDate, tblSalesMaster.RefNo";

const JournalReport reports[] = {
    {"S", "optSummary", prtSalesReport, "Sales Summary Report", salesOfContacts, "tblSalesMaster.RefDate",
     salesByDay, netOfDocuments},
    {"S",
     "optDetailed",
     prtSalesDetails,
     "Sales Details Report",
     nullptr,
     nullptr,
     nullptr,
     netOfItems,
     {},
     nullptr,
     soldItems},
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
    {"P",
     "optDetailed",
     prtTransactionDetails,
     "Purchase Details Report",
     nullptr,
     nullptr,
     nullptr,
     nullptr,
     {},
     nullptr,
     boughtItems},
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
     nullptr,
     nullptr,
     nullptr,
     profitOfLines,
     {},
     processingProfit,
     soldLines}};

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
                        .processing = report.processing,
                        .worked = report.worked},
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
