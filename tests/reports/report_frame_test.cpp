#include "reports/frame/report_output.h"
#include "reports/sales_by_town.h"
#include "support/test_store.h"

#include <gtest/gtest.h>

namespace {
QStringList pagesOf(const ReportPages& pages) { return reportOutput::plainText(pages).split('\f'); }

}  // namespace

TEST(ReportFrame, GroupsSumAndCount) {
    const ReportPages pages =
        salesReport({sale("Bogo", "Ana", 1234.5), sale("Bogo", "Ben", 0.25), sale("Toledo", "Cora", 10)});
    EXPECT_EQ(reportOutput::plainText(pages), R"(        Sales by Town
                                                    Amount
        Bogo
            Ana                                   1,234.50           308.63
            Ben                                       0.25             0.06
            Total of the town                     1,234.75
        Toledo
            Cora                                     10.00             2.50
            Total of the town                        10.00
        3                                         1,244.75

        Page: 1 of  1
)");
}

TEST(ReportFrame, PagesRepeatTheirHeadingsAndKnowTheirNumber) {
    const QStringList pages = pagesOf(salesReport(manySales(120)));
    ASSERT_EQ(pages.size(), 3);
    for (int page = 0; page < 3; ++page) {
        EXPECT_TRUE(pages[page].startsWith("        Sales by Town\n")) << page;
        EXPECT_EQ(pages[page].count("Cebu"), 1) << page;
        EXPECT_TRUE(pages[page].contains(QString("Page: %1 of  3").arg(page + 1)));
    }
    for (int i = 1; i <= 120; ++i) EXPECT_EQ(pages.join("").count(QString("Customer %1 ").arg(i)), 1) << i;
    EXPECT_TRUE(pages[2].contains("7,260.00"));
}

// Wherever the page happens to end, the heading of the next group goes with its first line.
TEST(ReportFrame, NoHeadingStandsAloneAtTheFoot) {
    for (int before = 44; before < 54; ++before) {
        QList<QStringList> sales = manySales(before);
        sales += sale("Toledo", "Cora", 1);
        for (const QString& page : pagesOf(salesReport(sales)))
            EXPECT_EQ(page.contains("Toledo"), page.contains("Cora")) << before;
    }
}

TEST(ReportFrame, TheFirstPageIsThereBeforeTheLastRowIsRead) {
    Rows rows({"Town", "Name", "Amount"}, manySales(100000));
    ReportRun run(salesByTown, rows, salesByTownEvents());
    EXPECT_TRUE(run.layOutPage());
    EXPECT_LE(run.pages().pages.size(), 2u);
    EXPECT_FALSE(run.isComplete());
    EXPECT_EQ(rows.text("Name").startsWith("Customer "), true);
    while (run.layOutPage()) {
    }
    EXPECT_TRUE(run.isComplete());
    EXPECT_GT(run.pages().pages.size(), 1900u);
}

TEST(ReportFrame, AGrowingTextMovesWhatStandsBelowAndBreaksBetweenPages) {
    const ReportLayout layout{"prtNote",
                              "Note...",
                              letterPortrait(720, 720, 10800),
                              {section(SectionKind::Detail, 600,
                                       {growing(field("txtNote", "Note", 0, 0, 2000, 225)),
                                        label("lblBelow", "Below", 0, 300, 2000, 225),
                                        label("lblBeside", "Beside", 4000, 0, 2000, 225)})}};
    QStringList words;
    for (int i = 1; i <= 900; ++i) words += QString("word%1").arg(i);
    Rows rows({"Note"}, {{words.join(' ')}});
    const ReportPages pages = runReport(layout, rows, {});
    const QString text = reportOutput::plainText(pages);
    EXPECT_GT(pages.pages.size(), 1u);
    for (const QString& word : words)
        EXPECT_EQ(text.count(QRegularExpression(word + "\\b")), 1) << qPrintable(word);
    EXPECT_GT(text.indexOf("Below"), text.indexOf("word900"));
    for (const ReportPage& page : pages.pages)
        for (const PageItem& item : page.items)
            EXPECT_LE(item.place.top() + item.place.height(), 15840 - 750);
}

TEST(ReportFrame, SubReportsGrowSideBySide) {
    const ReportLayout strip{
        "", "", {}, {section(SectionKind::Detail, 250, {field("txt", "Text", 0, 0, 1500, 225)})}};
    const ReportLayout layout{
        "prtTwo",
        "Two...",
        letterPortrait(720, 720, 10800),
        {section(SectionKind::Detail, 300,
                 {subReport("subLeft", 0, 0, 3000), subReport("subRight", 5000, 0, 3000),
                  label("lblEnd", "End", 0, 50, 900, 225)})}};
    const auto lists = [&strip](const ReportSource&, SectionFields& fields) {
        const auto run = [&strip](QList<QStringList> texts) {
            return std::make_shared<ReportJobParts>(
                ReportJobParts{strip, std::make_unique<Rows>(QStringList{"Text"}, std::move(texts)), {}});
        };
        fields.setSubReport("subLeft", run({{"a1"}, {"a2"}, {"a3"}}));
        fields.setSubReport("subRight", run({{"b1"}}));
    };
    Rows rows({"x"}, {{"1"}});
    const QStringList lines =
        reportOutput::plainText(runReport(layout, rows, {{on(SectionKind::Detail), lists}})).split('\n');
    EXPECT_TRUE(lines[0].contains("a1") && lines[0].contains("b1")) << qPrintable(lines.join("\n"));
    EXPECT_TRUE(lines.indexOf(QRegularExpression(".*End.*")) > lines.indexOf(QRegularExpression(".*a3.*")));
}

// Lines of two heights side by side: no page divides one, or a heading from its first line.
TEST(ReportFrame, StripsBreakTogetherAndKeepTheirHeadings) {
    const auto strip = [](int height) {
        return ReportLayout{
            "",
            "",
            {},
            {groupHeader(SectionKind::GroupHeader1, "Town", height, {field("t", "Town", 0, 0, 900, 225)}),
             section(SectionKind::Detail, height, {field("n", "Name", 0, 0, 1500, 225)})}};
    };
    const ReportLayout strips[] = {strip(250), strip(310)};
    const ReportLayout layout{"prtTwo",
                              "Two...",
                              letterPortrait(720, 720, 10800),
                              {section(SectionKind::Detail, 300,
                                       {subReport("sub0", 0, 0, 3000), subReport("sub1", 5000, 0, 3000)})}};
    const auto fill = [&strips](const ReportSource&, SectionFields& fields) {
        for (int i = 0; i < 2; ++i) {
            QList<QStringList> rows;
            for (int row = 0; row < 400; ++row)
                rows += {QString("%1Town%2.").arg(i).arg(row / 3), QString("%1Name%2.").arg(i).arg(row)};
            fields.setSubReport(
                QString("sub%1").arg(i),
                std::make_shared<ReportJobParts>(ReportJobParts{
                    strips[i], std::make_unique<Rows>(QStringList{"Town", "Name"}, rows), {}}));
        }
    };
    Rows rows({"x"}, {{"1"}});
    const QStringList pages = pagesOf(runReport(layout, rows, {{on(SectionKind::Detail), fill}}));
    EXPECT_GT(pages.size(), 8);
    for (int row = 0; row < 400; row += 3)
        for (const char side : {'0', '1'}) {
            const auto town =
                pages.indexOf(QRegularExpression(QString(".*%1Town%2\\..*").arg(side).arg(row / 3),
                                                 QRegularExpression::DotMatchesEverythingOption));
            EXPECT_TRUE(town >= 0 && pages[town].contains(QString("%1Name%2.").arg(side).arg(row))) << row;
        }
}

// A row whose event ends the report is not printed, nor is anything of a report that ends at its first.
TEST(ReportFrame, AReportEndsBeforeTheRowThatEndsIt) {
    for (int last = 0; last < 4; ++last) {
        Rows rows({"Town", "Name", "Amount"}, manySales(6, "Bogo"));
        const ReportPages pages =
            runReport(salesByTown, rows,
                      {{on(SectionKind::Detail), [=](const ReportSource& row, SectionFields& fields) {
                            if (row.text("Amount").toInt() > last) fields.endReport();
                        }}});
        const QString text = reportOutput::plainText(pages);
        EXPECT_EQ(text.count("Customer"), last);
        EXPECT_EQ(text.count("Total of the town"), last > 0);
        EXPECT_EQ(pages.pages.size(), last > 0);
    }
}

// A count is no amount, whatever its mask; a number without a mask is in plain digits.
TEST(ReportFrame, FieldsKnowTheKindOfTheirColumn) {
    TestStore store;
    addItem(store.connection(), {.code = "A", .description = {}, .cost = amount(1234.5)});
    addItem(store.connection(), {.code = "B", .description = {}});
    const ReportLayout layout{"",
                              "",
                              letterPortrait(0, 0, 10800),
                              {section(SectionKind::Detail, 250,
                                       {field("n", "Items", 0, 0, 900, 225, {}, mask::count),
                                        field("c", "Cost", 1000, 0, 900, 225)}),
                               section(SectionKind::ReportFooter, 250,
                                       {summing(field("s", "Items", 0, 0, 900, 225, {}, mask::count))})}};
    RecordsetSource rows(
        store.connection().execute("SELECT SUM(CostPrice) AS Cost, COUNT(*) AS Items FROM tblItemMaster"));
    EXPECT_EQ(reportOutput::plainText(runReport(layout, rows, {})), "2          1234.5\n2\n");
}

TEST(ReportFrame, APdfHasThePagesOfTheReport) {
    const QByteArray pdf = reportOutput::pdf(salesReport(manySales(120)));
    EXPECT_TRUE(pdf.startsWith("%PDF"));
    EXPECT_TRUE(pdf.contains("/Count 3"));
}
