#include "platform/print/bar_code.h"
#include "platform/ui/list_view.h"
#include "platform/ui/screen_registry.h"
#include "reports/frame/report_output.h"
#include "reports/frame/report_run.h"
#include "reports/golden.h"
#include "reports/labels/prtBarCode.h"
#include "reports/register.h"
#include "support/box_script.h"
#include "support/program_driver.h"
#include "support/screen_tour.h"
#include "support/statement_count.h"
#include "support/test_store.h"

#include <QPainter>
#include <QProcess>
#include <QRegularExpression>
#include <set>

namespace {
constexpr int dotsPerInch = 600;

QImage blank(const QSize& twips, int dots) {
    QImage paper(twips * dots / 1440, QImage::Format_Grayscale8);
    paper.fill(Qt::white);
    return paper;
}

QByteArray outputOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished(60000)) << qPrintable(program);
    return process.readAllStandardOutput();
}

class BarCodes : public SessionTest {
  protected:
    void TearDown() override {
        closeOpenScreens();
        SessionTest::TearDown();
    }
    QString file(const QString& name) const { return folder_.filePath(name); }

    QImage painted(const ReportPages& pages) const {
        QImage paper = blank(pages.setup.paper(), dotsPerInch);
        QPainter painter(&paper);
        painter.scale(dotsPerInch / 1440.0, dotsPerInch / 1440.0);
        reportOutput::paintPage(painter, pages, 0);
        return paper;
    }
    // Its upper part, which is as large an image as is read.
    QImage ofPdf(const ReportPages& pages) const {
        reportOutput::writeFile(file("labels.pdf"), reportOutput::pdf(pages));
        outputOf("pdftoppm", {"-r", QString::number(dotsPerInch), "-W", "5100", "-H", "3700", "-gray", "-png",
                              "-singlefile", file("labels.pdf"), file("labels")});
        return QImage(file("labels.png"));
    }
    // Label by label, cut out with no more white around it than stands up to the next one.
    QStringList decoded(const QImage& paper, int labels) const {
        EXPECT_FALSE(paper.isNull());
        QStringList arguments{"-q", "--raw", "-Sdisable", "-Scode39.enable"};
        for (int label = 0; label < labels; ++label) {
            const QRect twips(250 + 45 + 1620 * (label % 7), 250 + 1180 * (label / 7), 1620, 500);
            arguments += file(QString("label%1.png").arg(label));
            paper.copy(QRect(twips.topLeft() * dotsPerInch / 1440.0, twips.size() * dotsPerInch / 1440.0))
                .save(arguments.last());
        }
        return QString(outputOf("zbarimg", arguments)).split('\n', Qt::SkipEmptyParts);
    }
};

// Of every length that a label has room for, with every character.
TEST_F(BarCodes, OfASheetAreReadBackInTheirOrder) {
    const QString characters = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-.$/+%";
    QStringList codes;
    for (int label = 0; label < 49; ++label) {
        codes += characters.mid(label % 33, 1 + label % 10);
        if (label < 42) addItem(store(), {QString(codes.last()).toLower(), "NAIL"});
    }
    std::optional<ReportJobParts> report;
    const int statements = statementsOf(store(), [&] { report.emplace(*barCodeReport(store(), codes)); });
    EXPECT_EQ(statements, 49 + 4) << "one look-up for all labels";
    const ReportPages pages = runReport(*report);
    ASSERT_EQ(pages.pages.size(), 1);
    EXPECT_EQ(decoded(painted(pages), 49), codes);
    EXPECT_EQ(decoded(ofPdf(pages), 49), codes);
}

// How broad the bars of a painted code are, and what is between them.
std::set<qsizetype> runsOf(const QImage& paper) {
    QString dots;
    for (int x = 0; x < paper.width(); ++x)
        dots += qGray(paper.pixel(x, paper.height() / 2)) < 255 ? '#' : ' ';
    static const QRegularExpression run("#+|(?<=#) +(?=#)");
    std::set<qsizetype> runs;
    for (const auto& match : run.globalMatch(dots)) runs.insert(match.capturedLength());
    return runs;
}

TEST_F(BarCodes, AreBarsOfWholeDots) {
    const struct {
        int dots;
        const char* code;
        std::set<qsizetype> runs;  // none: too fine for the printer
    } cases[] = {{600, "1000000001", {4, 8}}, {300, "1000000001", {2, 4}}, {1200, "1000000001", {8, 16}},
                 {600, "1", {16, 34}},        {300, "A1", {6, 13}},        {203, "A1", {4, 8}},
                 {203, "1000000001", {}},     {360, "12345", {4, 9}},      {600, "12345678901", {}}};
    for (const auto& expected : cases) {
        QImage paper = blank({2000, 700}, expected.dots);
        QPainter painter(&paper);
        painter.scale(expected.dots / 1440.0, expected.dots / 1440.0);
        EXPECT_NE(barCode::paint(painter, {200, 100, 1530, 500}, expected.code), expected.runs.empty());
        EXPECT_EQ(runsOf(paper), expected.runs) << expected.code << ' ' << expected.dots;
    }
}

// Eight labels are a band of seven and one more; what cannot be bars says so.
TEST_F(BarCodes, StandSevenSideBySide) {
    addItem(store(), {.code = "1000000001", .description = "WIRE NAIL 2 IN", .selling = amount(1234.5)});
    addItem(store(), {"bolt#8", "BOLT"});
    store().run(
        "UPDATE tblItemMaster SET Locator = 'A-12', DateAquired = '2026-03-09' WHERE ItemCode LIKE '1%'");
    auto report = barCodeReport(
        store(), {"1000000001", "bolt#8", "GONE", "12345678901", "a1", "A*", "\u00d1", "1000000001"});
    compareWithGolden("bar_codes.txt", reportOutput::plainText(runReport(*report)));
    EXPECT_EQ(valueOf(store(), "SELECT COUNT(*) FROM tblTemp"), "8");
}

TEST_F(BarCodes, AreOfTheItemsThatAPersonPicks) {
    for (const char* code : {"N1", "N2", "W1"})
        addItem(store(), {.code = code, .description = *code == 'N' ? "NAIL" : "WIRE"});
    registerReportScreens();
    BoxScript boxes;
    QWidget* screen = openRegistered("frmBarSelection");
    auto* items = person::find<ListView>(screen, "lvwItems");
    auto* labels = person::find<ListView>(screen, "lvwSelected");
    const struct {
        const char *field, *typed, *button, *refusal;
        int items, labels;
    } steps[] = {{nullptr, "", "cmdProceed", "There are No Items Selected!", 3, 0},
                 {"txtNumber", "", "cmdSelectOne", "Please Enter a Numeric Value for Item Count!", 3, 0},
                 {"txtNumber", "2x", "cmdUnselectOne", nullptr, 3, 0},
                 {"txtSearch", "wi're", "cmdSearch", nullptr, 1, 0},
                 {"lvwItems", nullptr, "cmdSelectOne", nullptr, 1, 2},
                 {"txtSearch", "saw", "cmdSearch",
                  "System Could Not Generate BarCode for this Item... Product Does Not Exist!", 0, 2},
                 {nullptr, "", "cmdSelectOne", "Please Select an Item to Generate Bar Code!", 0, 2},
                 {"cboSearchBy", "", "cmdSearch", "Please Select Search Category First!", 0, 2},
                 {nullptr, "", "cmdSelectAll", nullptr, 3, 5},
                 {"lvwSelected", nullptr, "cmdUnselectOne", nullptr, 3, 4},
                 {"cboSearchBy", "Code", "cmdSearch",
                  "System Could Not Generate BarCode for this Item... Product Does Not Exist!", 0, 4},
                 {"txtSearch", "n", "cmdSearch", nullptr, 2, 4}};
    for (const auto& step : steps) {
        if (step.field && step.typed) person::fill(screen, step.field, step.typed);
        if (step.field && !step.typed) person::find<ListView>(screen, step.field)->setCurrentRow(0);
        if (step.refusal) boxes.expect("Error!", step.refusal);
        person::click(screen, step.button);
        boxes.verify();
        EXPECT_EQ(items->rowCount(), step.items) << step.button;
        EXPECT_EQ(labels->rowCount(), step.labels) << step.button;
    }
    person::click(screen, "cmdProceed");
    EXPECT_TRUE(ScreenRegistry::instance().opened("prtBarCode"));
    person::click(screen, "cmdUnselectAll");
    EXPECT_EQ(items->rowCount(), 3);
    EXPECT_EQ(labels->rowCount(), 0);
}
}  // namespace
