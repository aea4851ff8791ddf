#include "reports/frame/report_output.h"
#include "reports/golden.h"
#include "reports/sales_by_town.h"
#include "reports/sheet_cells.h"

#include <gtest/gtest.h>

namespace {
ReportControl amountField(const char* name, const char* column, int left = 3000) {
    return field(name, column, left, 0, 1200, 225, rightAligned(), mask::amount);
}
ReportSection band(SectionKind kind, const char* text, const QList<ReportControl>& controls) {
    return section(kind, 250, QList{label("lbl", text, 0, 0, 2900, 225)} + controls);
}

// The payments of a sale: a report of its own with a heading and a total, beside the line of the sale.
const ReportLayout payments{
    "",
    "",
    {},
    {band(SectionKind::ReportHeader, "Paid", {}),
     section(SectionKind::Detail, 250,
             {field("txtNo", "No", 0, 0, 900, 225), amountField("txtPaid", "Paid", 900)}),
     band(SectionKind::ReportFooter, "Total", {summing(amountField("txtSum", "Paid", 900))})}};

const ReportLayout sales{
    "prtSales",
    "Sales...",
    letterPortrait(720, 720, 10800),
    {section(SectionKind::PageHeader, 250,
             {showing(Shows::PageText, field("fldPage", "", 0, 0, 900, 225)),
              showing(Shows::RecordCount, field("fldCount", "", 3000, 0, 900, 225))}),
     groupHeader(SectionKind::GroupHeader1, "Region", 250, {field("txtRegion", "Region", 0, 0, 2000, 225)}),
     groupHeader(SectionKind::GroupHeader2, "Town", 250, {field("txtTown", "Town", 300, 0, 2000, 225)}),
     section(SectionKind::Detail, 250,
             {field("txtName", "Name", 600, 0, 2000, 225), amountField("txtNet", ""),
              subReport("subPaid", 5000, 0, 3000, 250)}),
     band(SectionKind::GroupFooter2, "Town", {summing(amountField("txtTownNet", "txtNet"))}),
     band(SectionKind::GroupFooter1, "Region", {summing(amountField("txtRegionNet", "txtNet"))}),
     band(SectionKind::ReportFooter, "Sales",
          {showing(Shows::Count, field("txtCount", "", 1500, 0, 900, 225, {}, mask::count)),
           summing(amountField("txtAllNet", "txtNet")), amountField("txtTax", "", 5000)})}};

void fillSale(const ReportSource& row, SectionFields& fields) {
    if (row.text("Name") == "Void") return fields.endReport();
    fields.setFigure("txtNet", row.currency("Quantity") * row.currency("Price"));
    if (row.isNull("Paid")) return;
    QList<QStringList> paid;
    for (const QString& amount : row.text("Paid").split(' '))
        paid += QStringList{QString::number(paid.size() + 1), amount};
    fields.setSubReport("subPaid",
                        std::make_shared<ReportJobParts>(ReportJobParts{
                            payments, std::make_unique<Rows>(QStringList{"No", "Paid"}, paid), {}}));
}
}  // namespace

// As text, and as the rows of a spreadsheet with their levels.
TEST(WholeReport, StripsFiguresAndSumsOnThreeLevelsUpToItsEnd) {
    const ReportEvents events{
        {on(SectionKind::Detail), fillSale},
        {on(SectionKind::ReportFooter), [](const ReportSource&, SectionFields& fields) {
             fields.setFigure("txtTax", divide(fields.figure("txtAllNet"), Currency::fromInteger(10)));
         }}};
    Rows rows({"Region", "Town", "Name", "Quantity", "Price", "Paid"},
              {{"North", "Bogo", "Ana", "2", "500.25", "600 400.5"},
               {"North", "Bogo", "Ben", "1", "0.5", ""},
               {"North", "Danao", "Cora", "3", "10", "30"},
               {"South", "Argao", "Dan", "1", "1000", ""},
               {"South", "Argao", "Void", "9", "9", ""},
               {"South", "Argao", "Eve", "9", "9", ""}});
    const ReportPages pages = runReport(sales, rows, events);
    compareWithGolden("whole_report.txt", reportOutput::plainText(pages));
    compareWithGolden("whole_report_sheet.txt", sheetText(readSheet(reportOutput::spreadsheet(pages))));
}
