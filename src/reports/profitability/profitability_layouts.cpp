#include "reports/profitability/profitability_layouts.h"

#include "reports/frame/list_report.h"

using enum ReportColumn::Kind;

static QList<ReportControl> heading() { return {companyLine(), titleLine(""), rangeLine()}; }

const ReportLayout& prtProfitabilitySummary() {
    static const ReportLayout layout =
        listLayout({.name = "prtProfitabilitySummary",
                    .caption = "Profitability  Report...",
                    .page = letterLandscape(750, 750, 14295),
                    .heading = heading(),
                    .headsTop = 1080,
                    .columns = {{"D.R. No.", 90, 1620, "RefNo"},
                                {"Date", 1800, 990, "RefDate", Date},
                                {"Customer Name", 2880, 3150, "ContactName"},
                                {"Net Total", 6120, 1710, "txtGross", Amount, "txtGrossTotal"},
                                {"Total Cost", 7920, 1710, "txtCost", Amount, "txtTotalCost"},
                                {"Total Profit", 9720, 1710, "txtProfit", Amount, "txtTotalProfit"},
                                {"Particulars", 11520, 2700, "Remarks"}},
                    .heights = {.heading = 1380}});
    return layout;
}

const ReportLayout& prtProfitabilityDetails() {
    static const ReportLayout layout = listLayout(
        {.name = "prtProfitabilityDetails",
         .caption = "Profit Report...",
         .page = legalLandscape(1400, 400, 17235),
         .heading = heading(),
         .headsTop = 1080,
         .columns = {{"D.R. No.", 1530, 1440, "RefNo"},
                     {"Date", 3060, 990, "RefDate", Date},
                     {"Qty", 4140, 990, "Served", Number},
                     {"Unit Price", 5220, 1260, "UnitPrice", Price},
                     {"Discount", 6570, 810, "Discount", Percent},
                     {"Pay Discount", 7740, 1080, "txtPayDiscount", Percent},
                     {"Net Price", 9180, 1260, "txtNetPrice", Price},
                     {"Gross", 10530, 1260, "txtGross", Amount, "txtGrandGross", "txtSubGross"},
                     {"Net Total", 11880, 1260, "txtNetTotal", Amount, "txtGrandNetTotal", "txtSubNetTotal"},
                     {"Cost", 13230, 1260, "txtCost", Price},
                     {"Profit", 14580, 1260, "txtProfitPerUnit", Price},
                     {"Total Profit", 15930, 1260, "txtTotalProfit", Amount, "txtGrandTotalProfit",
                      "txtSubTotalProfit"}},
         .total = "Grand Total = ",
         .heights = {.heading = 1410},
         .group = ReportGroup{"ItemID",
                              {field("txtItemCode", "ItemID", 90, 60, 1350, 225, bold()),
                               field("txtDescription", "Description", 1530, 60, 9000, 225, bold())}}});
    return layout;
}
