#include "reports/frame/report_output.h"
#include "reports/frame/report_run.h"
#include "reports/pdf_words.h"
#include "reports/read_outputs.h"
#include "reports/sales_by_town.h"

#include <gtest/gtest.h>
#include <QImage>
#include <QTemporaryDir>

namespace {
using reportOutput::Rendering;

QStringList sortedWords(const QString& text) {
    QStringList words = text.simplified().split(' ');
    words.sort();
    return words;
}

// A line with a text, and a figure at its right.
ReportPages figureBeside(const QString& text, const QString& figure, int width) {
    const ReportLayout layout{
        "prtFigure",
        "Figure...",
        letterPortrait(720, 720, 10800),
        {section(SectionKind::Detail, 300,
                 {field("txtText", "Text", 0, 0, 2000, 225),
                  field("txtFigure", "Figure", 4000 - width, 0, width, 225, rightAligned())})}};
    Rows rows({"Text", "Figure"}, {{text, figure}});
    return runReport(layout, rows, {});
}
}  // namespace

TEST(Outputs, HaveTheSameWordsOnTheSamePages) {
    for (const int sales : {1, 48, 120}) {
        const ReportPages pages = salesReport(manySales(sales));
        for (const Output& output : pageOutputs()) {
            const QStringList read = output.read(pages);
            ASSERT_EQ(read.size(), static_cast<qsizetype>(pages.pages.size())) << output.name;
            for (qsizetype page = 0; page < read.size(); ++page) {
                QString wanted;
                for (const PageItem& item : pages.pages[static_cast<std::size_t>(page)].items)
                    wanted += item.text + ' ';
                EXPECT_EQ(sortedWords(read[page]), sortedWords(wanted)) << output.name;
            }
        }
    }
}

// A figure never loses a digit unseen: it is narrowed, and what cannot be shown whole is not shown.
TEST(Outputs, AFigureIsWholeOrNotThere) {
    const QString whole = "1,234,567.0000", most = "-922,337,203,685,477.5808";
    const struct {
        QString text, figure;
        int width;
        QString painted, typed;
    } cases[] = {{"a", "1,234.50", 1080, "1,234.50", "1,234.50"},
                 {"a", whole, 1080, whole, whole},
                 {"a", most, 1080, "########", most},
                 {"a", most, 2000, most, most},
                 {QString(23, 'i'), "(922,337,203,685,477.5808)", 1800, "(922,337,203,685,477.5808)",
                  "(922,337,203,685,477.5808)"},
                 {QString(23, 'i'), most, 1080, "########", most}};
    for (const auto& each : cases)
        for (const Output& output : pageOutputs()) {
            const QString read =
                output.read(figureBeside(each.text, each.figure, each.width)).join(' ').simplified();
            const QString wanted = output.name == QString("text") ? each.typed : each.painted;
            EXPECT_EQ(read, each.text + " " + wanted) << output.name;
        }
}

TEST(Outputs, TextThatIsCopiedIsMadeOfPlainLetters) {
    const QString text = "Office file flour waffle";
    for (const Rendering rendering : {Rendering::Full, Rendering::DotMatrix}) {
        QStringList words;
        for (const PdfWord& word : pdfWords(reportOutput::pdf(figureBeside(text, "1.50", 1080), rendering)))
            words += word.text;
        EXPECT_EQ(words.join(' '), text + " 1.50");
    }
}

TEST(Outputs, PaintedFiguresStayInTheirControls) {
    for (const Rendering rendering : {Rendering::Full, Rendering::DotMatrix})
        for (const QString figure : {"1.50", "1,234,567.0000", "-922,337,203,685,477.5808"}) {
            const auto words = pdfWords(reportOutput::pdf(figureBeside("a", figure, 1080), rendering));
            ASSERT_EQ(words.size(), 2u);
            EXPECT_GE(words[1].place.left(), (720 + 2920) / 20 - 0.5) << qPrintable(figure);
            EXPECT_NEAR(words[1].place.right(), (720 + 4000) / 20, 1) << qPrintable(figure);
        }
}

TEST(Outputs, DotsAreOfAFixedPitchAndWithoutPictures) {
    QTemporaryDir folder;
    QImage logo(40, 20, QImage::Format_RGB32);
    logo.fill(Qt::red);
    ASSERT_TRUE(logo.save(folder.filePath("logo.png")));
    ReportPages pages = salesReport({sale("Bogo", "Ana", 1)});
    pages.pages[0].items.push_back(
        {ControlKind::Image, QRect(5000, 800, 1000, 1000), folder.filePath("logo.png"), 0});
    const struct {
        const char* name;
        QByteArray (*make)(const ReportPages&, Rendering, Progress&);
        const char *picture, *font, *fixedPitch;
    } cases[] = {{"PDF", reportOutput::pdf, "/Subtype /Image", "+DejaVuSans\n", "+DejaVuSansMono\n"},
                 {"rich text", reportOutput::rtf, "\\pict", "Verdana", "Courier New"}};
    for (const auto& each : cases) {
        const QByteArray full = each.make(pages, Rendering::Full, Progress::none());
        EXPECT_TRUE(full.contains(each.picture) && full.contains(each.font)) << each.name;
        EXPECT_FALSE(full.contains(each.fixedPitch)) << each.name;
        const QByteArray dots = each.make(pages, Rendering::DotMatrix, Progress::none());
        EXPECT_TRUE(dots.contains(each.fixedPitch)) << each.name;
        EXPECT_FALSE(dots.contains(each.picture) || dots.contains(each.font)) << each.name;
    }
}

// The logo of a firm as a designer sent it, on a paper of two pages.
TEST(Outputs, ALargePictureIsStoredOnceAndSmall) {
    QTemporaryDir folder;
    const QString file = folder.filePath("logo.png");
    QImage logo(4000, 3000, QImage::Format_RGB32);
    for (int y = 0; y < logo.height(); ++y)
        for (int x = 0; x < logo.width(); ++x) logo.setPixel(x, y, qRgb(x / 16, y / 12, (x ^ y) & 255));
    ASSERT_TRUE(logo.save(file));
    ReportPages pages = salesReport(manySales(60));
    ASSERT_EQ(pages.pages.size(), 2u);
    const PageItem picture{ControlKind::Image, QRect(740, 840, 1350, 1170), file, 0};
    for (ReportPage& page : pages.pages) page.items.push_back(picture);
    const QByteArray pdf = reportOutput::pdf(pages), rtf = reportOutput::rtf(pages);
    EXPECT_EQ(pdf.count("/Subtype /Image"), 1);
    EXPECT_TRUE(pdf.contains("/Width 281") && pdf.contains("/Height 21")) << "300 dots to the inch";
    EXPECT_LT(pdf.size(), 300'000);
    EXPECT_EQ(rtf.count("\\pict"), 1);
    EXPECT_LT(rtf.size(), 400'000);
    pages.pages[1].items.back().place.translate(0, 300);
    EXPECT_EQ(reportOutput::rtf(pages).count("\\pict"), 2) << "each at its own place";
}

TEST(Outputs, TellTheirPagesOfALongReport) {
    class Told : public Progress {
      public:
        void begin(const QString& text, qint64) override { texts += text; }
        void setText(const QString& text) override { texts += text; }
        void setValue(qint64 value) override { values += value; }
        void end() override { texts += "end"; }
        QStringList texts;
        QList<qint64> values;
    };
    const std::function<void(const ReportPages&, Progress&)> makers[] = {
        [](const ReportPages& pages, Progress& told) { reportOutput::pdf(pages, Rendering::Full, told); },
        [](const ReportPages& pages, Progress& told) { reportOutput::rtf(pages, Rendering::Full, told); },
        [](const ReportPages& pages, Progress& told) { reportOutput::plainText(pages, told); }};
    for (const auto& make : makers) {
        Told told, toldOfFew;
        make(salesReport(manySales(1200)), told);
        EXPECT_EQ(told.values.size(), 26);
        EXPECT_EQ(told.values.last(), 26);
        EXPECT_EQ(told.texts.first(), "Saving page 1 of 26...");
        EXPECT_EQ(told.texts.last(2), QStringList({"Saving page 26 of 26...", "end"}));
        make(salesReport(manySales(100)), toldOfFew);
        EXPECT_EQ(toldOfFew.texts, QStringList());
    }
}
