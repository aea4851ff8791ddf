#include "foundation/amount_in_words.h"
#include "foundation/setting_files.h"
#include "platform/masks.h"
#include "platform/parsing.h"
#include "reports/checks/amount_reader.h"
#include "reports/checks/check_report.h"
#include "reports/checks/prtVoucher.h"
#include "reports/frame/report_output.h"
#include "reports/frame/report_run.h"
#include "reports/golden.h"
#include "reports/pdf_words.h"
#include "support/files.h"
#include "support/test_store.h"

#include <gtest/gtest.h>
#include <QImage>
#include <QPainter>
#include <random>

namespace {
Currency money(const char* text) { return parseNumber(text).value(); }

QString wordsOf(Currency value) { return checkTexts("**", "", formatNumber(value, mask::amount)).words; }

TEST(AmountOfWords, IsWhatWasWritten) {
    std::vector<Currency> amounts;
    for (const char* edge :
         {"0", "0.01", "0.5", "1", "10", "15", "20", "99.99", "100", "101", "999.99", "1000", "10000",
          "100000.01", "999999.99", "1000000", "1000000000", "999999999999.99"})
        amounts.push_back(money(edge));
    std::mt19937_64 random(7);
    for (int digits = 1, i = 0; i < 1000; digits = ++i % 14 + 1)
        amounts.push_back(
            Currency::fromTenThousandths(qint64(random() % quint64(std::pow(10.0, digits))) * 100));
    for (const Currency value : amounts)
        EXPECT_EQ(AmountOfWords(wordsOf(value)), value) << qPrintable(wordsOf(value));
}

TEST(AmountOfWords, RefusesWhatIsNoAmount) {
    for (const char* text :
         {"", " Pesos & 5/100", "One", "One Two Pesos", "Twenty Eleven Pesos", "Hundred Pesos",
          "One Thousand Two Million Pesos", "One Hundred Hundred Pesos", "Ten Hundred Pesos",
          "One Pesos & 00/100", "One Pesos 50/100", "One Pesos & 50/100 More", "Zero Pesos",
          "One Thousand Thousand Pesos", "One and Two Pesos", "One Peso"})
        EXPECT_FALSE(AmountOfWords(text)) << text;
}

// A paper and where its fields stand, in twips: date, payee, amount, words, voucher, mark.
struct Paper {
    const char* name;
    const CheckPaper& (*paper)();
    const char* stars;
    QPoint date, payee, amount, words, voucher, label, cross;
};
const Paper papers[]{{"CommercialLaser",
                      prtCheckOnly,
                      "***",
                      {8820, 720},
                      {1440, 1260},
                      {8820, 1260},
                      {1170, 1800},
                      {8640, 2160},
                      {7200, 2160},
                      {360, 270}},
                     {"PersonalLaser",
                      prtCheckOnlySmall,
                      "**",
                      {7110, 810},
                      {1710, 1350},
                      {7290, 1350},
                      {1440, 1860},
                      {7110, 2250},
                      {5760, 2250},
                      {360, 360}},
                     {"CommercialDots",
                      prtCheckOnlyDotMatrix,
                      "**",
                      {8730, 720},
                      {1620, 1170},
                      {9270, 1170},
                      {1260, 1710},
                      {8460, 2070},
                      {7020, 2070},
                      {450, 810}},
                     {"PersonalDots",
                      prtCheckOnlySmallDotMatrix,
                      "**",
                      {7380, 720},
                      {1710, 1260},
                      {7560, 1260},
                      {1440, 1800},
                      {7110, 2160},
                      {5760, 2160},
                      {450, 810}}};

class Checks : public SessionTest, public ::testing::WithParamInterface<Paper> {
  protected:
    void SetUp() override {
        SessionTest::SetUp();
        addContact(store(), {.id = "C1", .name = "Ana Cruz"});
    }
    void issue(const char* number, const char* figure, bool crossed = false, const char* status = "Pending") {
        insertRow(store(), "tblChecks",
                  "ZevRef, VoucherID, CheckNo, CheckDate, CheckAmount, ContactNo, CheckStatus, CrossCheck",
                  {++key_, "V1", number, QDate(2026, 3, 9), bound(money(figure)), "C1", status, crossed});
    }
    ReportPages pages() {
        auto report = checkReport(store(), GetParam().paper(), "V1");
        return report ? runReport(report->layout, *report->rows, report->events) : ReportPages();
    }
    std::vector<PdfWord> words() {
        return pdfWords(reportOutput::pdf(
            pages(), GetParam().paper().layout.rendering.value_or(reportOutput::Rendering::Full)));
    }
    // The words of the line that begins at this place, in twips, to the next field; empty: none begins there.
    static QString lineAt(const std::vector<PdfWord>& words, const QPoint& place, int check = 0) {
        const QPointF at = QPointF(place + QPoint(0, check * 4320)) / 20;
        QStringList line;
        for (const PdfWord& word : words) {
            const bool begins = line.isEmpty() && std::abs(word.place.left() - at.x()) < 2;
            if (std::abs(word.place.top() - at.y()) < 2 && (begins || !line.isEmpty())) line += word.text;
        }
        return line.join(u' ');
    }
    int key_ = 0;
};
INSTANTIATE_TEST_SUITE_P(Papers, Checks, ::testing::ValuesIn(papers),
                         [](const auto& paper) { return std::string(paper.param.name); });

TEST_P(Checks, StandInTheirPlacesAndTellOneAmount) {
    const Paper& paper = GetParam();
    const QString stars = paper.stars;
    const char* figures[]{"1,234.50", "777,777,777.77"};
    issue("1", figures[0], true);
    issue("2", figures[1]);
    const auto found = words();
    for (int check : {0, 1}) {
        const QString amount = stars + figures[check] + stars;
        EXPECT_EQ(lineAt(found, paper.date, check), "03/09/2026");
        EXPECT_TRUE(lineAt(found, paper.payee, check).startsWith(stars + "Ana Cruz" + stars));
        EXPECT_EQ(lineAt(found, paper.amount, check), amount);
        EXPECT_EQ(lineAt(found, paper.voucher, check), "V1");
        EXPECT_TRUE(lineAt(found, paper.label, check).startsWith("Voucher No. :"));
        const QString inWords = lineAt(found, paper.words, check);
        EXPECT_EQ(AmountOfWords(inWords), money(figures[check])) << qPrintable(inWords);
        EXPECT_TRUE(inWords.startsWith(stars) && inWords.endsWith("Only" + stars));
    }
}

TEST_P(Checks, AreCrossedWhereTheirMarkStands) {
    issue("1", "10", true);
    issue("2", "10", false);
    const ReportPages paper = pages();
    QImage sheet(paper.setup.paper() / 20, QImage::Format_Grayscale8);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    painter.scale(0.05, 0.05);
    reportOutput::paintPage(painter, paper, 0,
                            GetParam().paper().layout.rendering.value_or(reportOutput::Rendering::Full));
    for (const int check : {0, 1}) {
        const QPoint corner = (GetParam().cross + QPoint(0, check * 4320)) / 20;
        int dark = 0;
        for (int x = 0; x < 50; ++x)
            for (int y = 0; y < 13; ++y) dark += sheet.pixelColor(corner + QPoint(x, y)).lightness() < 128;
        EXPECT_EQ(dark > 10, check == 0) << dark;
    }
}

TEST_P(Checks, EndAtAPaymentInCash) {
    issue("1", "10");
    issue("Cash", "20", false, "Cash");
    issue("3", "30");
    const auto found = words();
    EXPECT_FALSE(lineAt(found, GetParam().amount).isEmpty());
    EXPECT_TRUE(lineAt(found, GetParam().amount, 1).isEmpty() &&
                lineAt(found, GetParam().amount, 2).isEmpty());
    store().run("DELETE FROM tblChecks WHERE CheckNo = '1'");
    EXPECT_TRUE(pages().pages.empty());
    EXPECT_FALSE(previewChecks(store(), GetParam().paper(), "V1")) << "and not a word is said";
}

TEST_P(Checks, AreRefusedWhereTheWordsFail) {
    issue("1", "10");
    EXPECT_FALSE(checkRefusal(store(), GetParam().paper(), "V1"));
    issue("Z9", "1000000000000");
    const auto refusal = checkRefusal(store(), GetParam().paper(), "V1");
    ASSERT_TRUE(refusal);
    EXPECT_TRUE(refusal->text.contains("Check No. Z9 ") && refusal->text.contains("1,000,000,000,000.00"));
    store().run("UPDATE tblChecks SET CheckStatus = 'Cash' WHERE CheckNo = '1'");
    EXPECT_FALSE(checkRefusal(store(), GetParam().paper(), "V1")) << "it does not print";
}

class CheckSettings : public SessionTest {};

TEST_F(CheckSettings, ChooseThePaper) {
    const struct {
        const char *book, *printer, *fromEntry, *fromHub;
    } choices[]{{"c", "", "prtCheckOnlyDotMatrix", "prtCheckOnlyDotMatrix"},
                {"C", "D", "prtCheckOnlyDotMatrix", "prtCheckOnlyDotMatrix"},
                {"C", "L", "prtCheckOnly", "prtCheckOnly"},
                {"C", "X", "", "prtCheckOnly"},
                {"", "D", "prtCheckOnlySmallDotMatrix", "prtCheckOnlySmallDotMatrix"},
                {"other", " L ", "prtCheckOnlySmall", "prtCheckOnlySmall"},
                {"P", "l", "", "prtCheckOnlySmall"}};
    for (const auto& choice : choices) {
        writeFile(folder_.filePath("Check.ini"), QByteArray(choice.book) + '\n');
        writeFile(folder_.filePath("CheckPrinter.ini"), QByteArray(choice.printer) + '\n');
        const CheckPaper* fromEntry = checkPaperFromEntry();
        EXPECT_EQ(fromEntry ? fromEntry->layout.name : QString(), choice.fromEntry);
        EXPECT_EQ(checkPaper(defaultCheckBook()).layout.name, choice.fromHub);
    }
}

class VoucherPaper : public SessionTest {};

TEST_F(VoucherPaper, ShowsWhatIsPaidBesideItsChecks) {
    addContact(store(), {.id = "C1", .name = "Ana Cruz & Sons"});
    store().run(
        "UPDATE tblSystemProfile SET CompanyName = 'Mabini Trading', Checked = 'Jun', Approved = 'Rosa'");
    for (const char* number : {"V1", "V2"})
        insertRow(store(), "tblDisbursementMaster",
                  "VoucherNo, VoucherDate, VoucherAmount, ContactNo, Remarks",
                  {number, QDate(2026, 3, 9), bound(money("1000")), "C1", "March"});
    const auto pay = [this](const QVariant& reference, const char* figure) {
        insertRow(store(), "tblDisbursementDetails",
                  "VoucherID, PuchaseID, PurchaseDate, PayAmount, Particulars",
                  {"V1", reference, reference.isNull() ? QVariant() : QVariant(QDate(2026, 2, 1)),
                   bound(money(figure)), reference.isNull() ? QVariant() : QVariant("Nails and cement")});
    };
    pay("02-1001-2026", "900.5");
    pay({}, "99.5");
    insertRow(store(), "tblChecks", "ZevRef, VoucherID, CheckNo, CheckDate, CheckAmount, ContactNo",
              {1, "V1", "000123", QDate(2026, 3, 15), bound(money("1000")), "C1"});
    QString printed;
    for (const char* number : {"V1", "V2"}) {
        auto report = voucherReport(store(), number);
        ASSERT_TRUE(report);
        printed +=
            reportOutput::plainText(runReport(report->layout, *report->rows, report->events, report->texts));
    }
    compareWithGolden("voucher.txt", printed);
    EXPECT_FALSE(voucherReport(store(), "' OR '1'='1"));
}
}  // namespace
