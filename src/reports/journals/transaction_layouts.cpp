#include "reports/journals/transaction_layouts.h"

#include "reports/frame/list_report.h"

namespace {
using enum ReportColumn::Kind;

ReportLayout list(const char* name, const char* caption, const PageSetup& page,
                  const QList<ReportColumn>& columns) {
    return listLayout({.name = name,
                       .caption = caption,
                       .page = page,
                       .heading = {companyLine(), titleLine(""), rangeLine()},
                       .headsTop = 1080,
                       .columns = columns});
}
}  // namespace

const ReportLayout& prtSalesReport() {
    static const ReportLayout layout =
        list("prtSalesReport", "Sales Report...", letterPortrait(500, 500, 10965),
             {{"D.R. No.", 90, 1710, "RefNo"},
              {"Date", 1890, 990, "RefDate", Date},
              {"Customer Name", 2970, 3600, "ContactName"},
              {"Amount", 6660, 1620, "txtAmount", Amount, "txtTotal"},
              {"Particulars", 8370, 2520, "Remarks"}});
    return layout;
}

const ReportLayout& prtSalesDetails() {
    static const ReportLayout layout =
        list("prtSalesDetails", "Transaction Detail Report...", letterPortrait(750, 500, 10770),
             {{"Item Code", 90, 1080, "ItemID"},
              {"Description", 1260, 2250, "Description"},
              {"Quantity", 3600, 1530, "SumQty", Amount},
              {"Unit", 5220, 900, "Unit"},
              {"Gross Total", 6210, 1530, "SumTotal", Amount, "txtTotalGross"},
              {"Pay Discount", 7830, 1260, "txtDiscount", Amount, "txtTotalDiscount"},
              {"Net Total", 9180, 1530, "txtNetTotal", Amount, "txtTotal"}});
    return layout;
}

const ReportLayout& prtReceipt() {
    static const ReportLayout layout =
        list("prtReceipt", "Transaction Report...", letterPortrait(650, 500, 10875),
             {{"Payment No.", 90, 1260, "PayNo"},
              {"Date", 1440, 990, "PaymentDate", Date},
              {"Customer Name", 2520, 3240, "ContactName"},
              {"Amount Paid", 5850, 1260, "PaymentAmount", Amount, "txtTotal"},
              {"Discount", 7200, 1080, "TotalDiscAmount", Amount, "txtTotalDiscount"},
              {"Remarks", 8370, 2430, "PayRemarks"}});
    return layout;
}

const ReportLayout& prtReceiptSummary() {
    static const ReportLayout layout =
        list("prtReceiptSummary", "Bad Order Summary Report...", letterPortrait(750, 750, 10695),
             {{"Contact Name", 90, 2790, "ContactName"},
              {"Address", 2970, 2790, "Address"},
              {"Tel. No.", 5850, 1710, "TelNo"},
              {"Total Discount", 7650, 1440, "SumDiscount", Amount, "txtTotalDiscount"},
              {"Total Amount", 9180, 1440, "SumTotal", Amount, "txtTotal"}});
    return layout;
}

const ReportLayout& prtTransactions() {
    static const ReportLayout layout =
        list("prtTransactions", "Transaction Report...", letterPortrait(650, 500, 10875),
             {{"", 90, 1260, "Number"},
              {"Date", 1440, 990, "Day", Date},
              {"", 2520, 3690, "ContactName"},
              {"Amount", 6300, 1260, "Amount", Amount, "txtTotal"},
              {"", 7650, 3150, "Remarks"}});
    return layout;
}

const ReportLayout& prtTransactionDetails() {
    static const ReportLayout layout =
        list("prtTransactionDetails", "Transaction Detail Report...", letterPortrait(750, 750, 10680),
             {{"Item Code", 90, 1710, "ItemID"},
              {"Description", 1890, 4500, "Description"},
              {"Quantity", 6480, 1080, "SumQty", Amount},
              {"Unit", 7650, 1350, "Unit"},
              {"Total Amount", 9090, 1530, "SumTotal", Amount, "txtTotal"}});
    return layout;
}

const ReportLayout& prtTransactionPayments() {
    static const ReportLayout layout =
        list("prtTransactionPayments", "Transaction Report...", letterPortrait(750, 750, 10680),
             {{"Contact Name", 90, 3240, "ContactName"},
              {"Address", 3420, 3240, "Address"},
              {"Tel. No.", 6750, 2160, "TelNo"},
              {"Total Amount", 9000, 1620, "SumTotal", Amount, "txtTotal"}});
    return layout;
}
