#include "reports/frame/report_output.h"
#include "reports/rich_text.h"
#include "reports/sales_by_town.h"

#include <gtest/gtest.h>
#include <QImage>
#include <QTemporaryDir>

namespace {
QStringList wordsOf(const QString& text) {
    static const QRegularExpression space("\\s+"), rule("^-+$");
    QStringList words = text.split(space, Qt::SkipEmptyParts);
    words.removeIf([](const QString& word) { return rule.match(word).hasMatch(); });
    return words;
}

// A page of texts on one line, each 1,200 twips wide, one behind the other.
ReportPages lineOf(const QStringList& texts, const TextStyle& style = {}) {
    ReportPages pages{"Texts...", letterPortrait(720, 720, 10800), {style}, {{}}};
    for (int i = 0; i < texts.size(); ++i)
        pages.pages[0].items.push_back(
            {ControlKind::Label, QRect(720 + i * 1200, 750, 1200, 225), texts[i], 0});
    return pages;
}
}  // namespace

TEST(RtfOutput, EscapesWhatRichTextReads) {
    const QStringList texts{"a\\b{c}", "\\par", "Niño", "₱1.00", "😀", "{", "tab\there"};
    const ReportPages pages = lineOf(texts);
    const QByteArray rtf = reportOutput::rtf(pages);
    const RichText rich(rtf);
    EXPECT_EQ(wordsOf(rich.text), wordsOf(texts.join(' ')));
    EXPECT_EQ(rich.depth, 0);
    EXPECT_TRUE(std::all_of(rtf.begin(), rtf.end(), [](char c) { return c > 0 && c < 0x7f; }));
}

// Where the columns stand: left edges, right edges and middles, from the margin.
TEST(RtfOutput, ColumnsAreTabStopsOfTheirKind) {
    TextStyle style;
    const auto stopsOf = [&style](const QStringList& texts) {
        static const QRegularExpression stops("\\\\slmult0(\\S*)");
        return stops.match(QString::fromLatin1(reportOutput::rtf(lineOf(texts, style)))).captured(1);
    };
    EXPECT_EQ(stopsOf({"a", "b", "c"}), "\\tx1200\\tx2400");
    style.alignment = Qt::AlignRight;
    EXPECT_EQ(stopsOf({"1.00", "200.00"}), "\\tqr\\tx1200\\tqr\\tx2400");
    style.alignment = Qt::AlignHCenter;
    EXPECT_EQ(stopsOf({"mm", "mmmm"}), "\\tqc\\tx600\\tqc\\tx1800");
}

TEST(RtfOutput, WhatFollowsARightEdgeLeavesItsColumnInPlace) {
    ReportPages pages = lineOf({"5.0000", "%"}, rightAligned());
    pages.styles.push_back({});
    pages.pages[0].items[1].style = 1;
    EXPECT_TRUE(reportOutput::rtf(pages).contains("\\tqr\\tx1200\\tx1220 "));
}

TEST(RtfOutput, ATextTooWideForItsControlPushesNoColumn) {
    const ReportPages pages = lineOf({QString(30, 'W'), "", "1.00"});
    const QByteArray rtf = reportOutput::rtf(pages);
    EXPECT_TRUE(rtf.contains("\\tx2400")) << rtf.constData();
    EXPECT_TRUE(rtf.contains("\\charscalex"));
    EXPECT_EQ(wordsOf(RichText(rtf).text), wordsOf(reportOutput::plainText(pages)));
}

TEST(RtfOutput, ARuleTakesNoPartInTheFigureUnderIt) {
    ReportPages pages = lineOf({"12.50"}, rightAligned());
    pages.pages[0].items.push_back({ControlKind::Line, QRect(720, 740, 1200, 0), {}, 0});
    EXPECT_EQ(reportOutput::plainText(pages).simplified(), "-------------- 12.50");
    EXPECT_TRUE(reportOutput::rtf(pages).contains("\\tlul\\tx1200"));
}

// The heights and gaps of a page's lines add up to the page, wherever its lines stand.
TEST(RtfOutput, NoPageRunsOver) {
    const QString rtf = QString::fromLatin1(reportOutput::rtf(salesReport(manySales(120))));
    static const QRegularExpression lines("(\\\\pagebb)?\\\\sb(\\d+)\\\\sl-(\\d+)");
    int used = 0, most = 0;
    for (auto each = lines.globalMatch(rtf); each.hasNext();) {
        const auto line = each.next();
        used = (line.hasCaptured(1) ? 0 : used) + line.captured(2).toInt() + line.captured(3).toInt();
        most = std::max(most, used);
    }
    EXPECT_GT(most, 10000);
    EXPECT_LE(most, 15840 - 2 * 750);
}

TEST(RtfOutput, APictureLiesWhereItStands) {
    QTemporaryDir folder;
    const QString path = folder.filePath("logo.png");
    QImage logo(40, 20, QImage::Format_RGB32);
    logo.fill(Qt::red);
    ASSERT_TRUE(logo.save(path));
    ReportPages pages = lineOf({"Firm"});
    pages.pages[0].items.push_back({ControlKind::Image, QRect(5000, 800, 1000, 1000), path, 0});
    pages.pages.push_back({{{ControlKind::Image, QRect(5000, 800, 1000, 1000), path + "none", 0}}});
    const QByteArray rtf = reportOutput::rtf(pages);
    EXPECT_TRUE(rtf.contains("\\shpleft5000\\shptop800\\shpright6000\\shpbottom1300"));
    EXPECT_EQ(rtf.count("89504e470d0a1a0a"), 1);   // how a PNG begins
    EXPECT_EQ(RichText(rtf).text.count('\f'), 1);  // of the page without a text
}
