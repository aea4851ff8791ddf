#include "reports/frame/report_output.h"
#include "reports/frame/sheet_value.h"
#include "reports/sales_by_town.h"
#include "reports/sheet_cells.h"

#include "platform/masks.h"

#include <gtest/gtest.h>

TEST(Spreadsheet, HoldsFiguresAndDaysThatItShowsAsThePageDoes) {
    const TextStyle left, right = rightAligned();
    const struct {
        const char *text, *mask;
        const TextStyle& style;
        bool isText;
    } cases[] = {{"1,234.50", mask::amount, left, false},
                 {"-1,234.50", mask::amount, left, false},
                 {"(1,234.50)", mask::signedAmount, right, false},
                 {"9,999,999,999,999.99", mask::amount, right, false},
                 {"10,000,000,000,000.00", mask::amount, right, true},
                 {"-922,337,203,685,477.5808", mask::price, right, true},
                 {"1,234.5", mask::amount, right, true},
                 {"30 Days", mask::amount, right, true},
                 {"12/31/2026", mask::date, left, false},
                 {"12/31/2026 23:59:58", mask::dateTime, left, false},
                 {"12/31/1899", mask::date, left, true},
                 {"1000000059", nullptr, left, true},
                 {"1000000059", nullptr, right, false},
                 {"-12.5", nullptr, right, false},
                 {"007", nullptr, right, true},
                 {"=1+1", nullptr, right, true}};
    for (const auto& each : cases) {
        const ReportControl control = field("txtCell", "Cell", 0, 0, 2000, 225, each.style, each.mask);
        EXPECT_EQ(std::holds_alternative<QString>(sheetValue(each.text, control).value), each.isText)
            << each.text;
        ReportLayout layout{"prtCell",
                            "Cell...",
                            letterPortrait(720, 720, 10800),
                            {section(SectionKind::Detail, 300, {control})}};
        Rows rows({"Cell"}, {{""}});
        const ReportPages pages = runReport(
            layout, rows, {{on(SectionKind::Detail), [&](const ReportSource&, SectionFields& fields) {
                                fields.setText("txtCell", each.text);
                            }}});
        const SheetFile sheet = readSheet(reportOutput::spreadsheet(pages));
        EXPECT_EQ(sheet.lines.back().cells, QStringList(each.text));
        EXPECT_EQ(sheet.figures.size(), each.isText ? 0 : 1) << each.text;
    }
}

TEST(Spreadsheet, KeepsLongAndStrangeTextsWhole) {
    const QString strange = QString("=SUM(A1) <b>\"&\" Peña") + QChar(1) + "\nnext",
                  many = QString("word\n").repeated(8000);
    for (const QString& text : {strange, many, QString(70000, 'x')}) {
        const ReportLayout layout{
            "prtText",
            "A title [of] more: than/31*letters?...",
            letterPortrait(720, 720, 10800),
            {section(SectionKind::Detail, 300, {growing(field("txtText", "Text", 0, 0, 9000, 225))})}};
        Rows rows({"Text"}, {{text}});
        const SheetFile sheet = readSheet(reportOutput::spreadsheet(runReport(layout, rows, {})));
        QString read;
        for (const SheetLine& line : sheet.lines) read += line.cells.join(' ') + (text == many ? "\n" : "");
        EXPECT_EQ(read.trimmed().replace("_x0001_", QChar(1)), text.trimmed());
        EXPECT_EQ(sheet.frozenLines, 1);
    }
}
