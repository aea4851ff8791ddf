#include "reports/frame/report_run.h"

#include "platform/masks.h"
#include "reports/frame/report_output.h"

#include <gtest/gtest.h>

namespace {
// Rows of texts, for reports without a store.
class Rows : public ReportSource {
  public:
    Rows(const QStringList& columns, QList<QStringList> rows) : columns_(columns), rows_(std::move(rows)) {}
    bool next() override { return ++at_ < rows_.size(); }
    void lookBack(bool looksBack) override { at_ += looksBack ? -1 : 1; }
    QString text(const QString& column) const override { return rows_[at_][columns_.indexOf(column)]; }
    Currency currency(const QString& column) const override {
        return Currency::fromDouble(text(column).toDouble());
    }
    QDateTime dateTime(const QString&) const override { return {}; }
    bool isNull(const QString& column) const override { return text(column).isEmpty(); }

  private:
    QStringList columns_;
    QList<QStringList> rows_;
    qsizetype at_ = -1;
};

// A made-up list of sales by town: as a whole report is written.
const ReportLayout salesByTown{
    "prtSalesByTown",
    "Sales by Town...",
    letterPortrait(720, 720, 10800),
    {section(SectionKind::PageHeader, 540,
             {label("lblTitle", "Sales by Town", 0, 0, 4000, 270, bold(10)),
              label("lblAmount", "Amount", 3000, 300, 1200, 225, rightAligned())}),
     groupHeader(SectionKind::GroupHeader1, "Town", 300,
                 {field("txtTown", "Town", 0, 30, 3000, 225, bold())}),
     section(SectionKind::Detail, 270,
             {field("txtName", "Name", 300, 0, 2500, 225),
              field("txtAmount", "Amount", 3000, 0, 1200, 225, rightAligned(), mask::amount),
              field("txtShare", "", 4400, 0, 1200, 225, rightAligned())}),
     section(SectionKind::GroupFooter1, 300,
             {label("lblSum", "Total of the town", 300, 0, 2500, 225),
              summing(field("txtSum", "Amount", 3000, 0, 1200, 225, rightAligned(), mask::amount))}),
     section(SectionKind::PageFooter, 300,
             {field("fldPageNo", "", 0, 0, 3000, 225),
              summing(field("fldPageCount", "", 3000, 0, 600, 225), Summary::PageCount)}),
     section(SectionKind::ReportFooter, 300,
             {summing(field("txtCount", "Name", 0, 0, 600, 225), Summary::Count),
              summing(field("txtAll", "Amount", 3000, 0, 1200, 225, rightAligned(), mask::amount))})}};

ReportEvents salesByTownEvents() {
    return {{on(SectionKind::Detail),
             [](const ReportSource& row, SectionFields& fields) {
                 fields.setText(
                     "txtShare",
                     formatNumber(divide(row.currency("Amount"), Currency::fromInteger(4)), mask::amount));
             }},
            {on(SectionKind::PageFooter), [page = 0](const ReportSource&, SectionFields& fields) mutable {
                 fields.setText("fldPageNo",
                                QString("Page: %1 of  %2").arg(++page).arg(fields.text("fldPageCount")));
                 fields.setVisible("fldPageCount", false);
             }}};
}

QStringList sale(const QString& town, const QString& name, double amount) {
    return {town, name, QString::number(amount)};
}

ReportPages salesReport(QList<QStringList> sales) {
    Rows rows({"Town", "Name", "Amount"}, std::move(sales));
    return runReport(salesByTown, rows, salesByTownEvents());
}

QStringList pagesOf(const ReportPages& pages) { return reportOutput::plainText(pages).split('\f'); }

QList<QStringList> manySales(int count, const QString& town = "Cebu") {
    QList<QStringList> sales;
    for (int i = 1; i <= count; ++i) sales += sale(town, QString("Customer %1").arg(i), i);
    return sales;
}
}  // namespace

TEST(ReportFrame, GroupsSumAndCount) {
    const ReportPages pages =
        salesReport({sale("Bogo", "Ana", 1234.5), sale("Bogo", "Ben", 0.25), sale("Toledo", "Cora", 10)});
    EXPECT_EQ(reportOutput::plainText(pages), R"(       Sales by Town
                                            Amount
       Bogo
          Ana                             1,234.50         308.63
          Ben                                 0.25           0.06
          Total of the town               1,234.75
       Toledo
          Cora                               10.00           2.50
          Total of the town                  10.00
       3                                  1,244.75

       Page: 1 of  1
)");
}

TEST(ReportFrame, PagesRepeatTheirHeadingsAndKnowTheirNumber) {
    const QStringList pages = pagesOf(salesReport(manySales(120)));
    ASSERT_EQ(pages.size(), 3);
    for (int page = 0; page < 3; ++page) {
        EXPECT_TRUE(pages[page].startsWith("       Sales by Town\n")) << page;
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

TEST(ReportFrame, APdfHasThePagesOfTheReport) {
    const QByteArray pdf = reportOutput::pdf(salesReport(manySales(120)));
    EXPECT_TRUE(pdf.startsWith("%PDF"));
    EXPECT_TRUE(pdf.contains("/Count 3"));
}

TEST(ReportFrame, AFileIsWrittenWholeOrNotAtAll) {
    QTemporaryDir folder;
    const QString path = folder.filePath("out.txt");
    EXPECT_EQ(reportOutput::writeFile(path, "old"), "");
    for (const QString& bad :
         {folder.path(), folder.filePath("none/out.txt"), folder.filePath(QString(300, 'n'))})
        EXPECT_FALSE(reportOutput::writeFile(bad, "new").isEmpty()) << qPrintable(bad);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList("out.txt"));
}
