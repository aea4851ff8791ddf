#include "foundation/setting_files.h"
#include "reports/checks/check_choice.h"
#include "reports/checks/form_setup.h"
#include "support/files.h"
#include "support/screen_driver.h"
#include "support/test_store.h"

#include <QCheckBox>
#include <QDir>

namespace {
// The three files of the printing settings: check book, check printer, printer of the reports.
class PrintSettings : public SessionTest {
  protected:
    static constexpr const char* names[] = {"Check.ini", "CheckPrinter.ini", "Printer.ini"};
    QString path(const char* name) const { return folder_.filePath(name); }
    void write(const QStringList& lines) {
        for (int i = 0; i < 3; ++i) writeFile(path(names[i]), lines[i].toUtf8());
    }
    QString written() const {
        QByteArray all;
        for (const char* name : names) all += contentOf(path(name));
        return all;
    }
    static QString inSession() {
        return session().CheckBookFormat + session().CheckPrinterKind + session().ReportPrinterKind;
    }
};
}  // namespace

TEST_F(PrintSettings, AreReadInEitherCase) {
    const struct {
        QStringList lines;
        FormSetup setup;
    } cases[] = {{{"P\n", "L\n", "D\n"}, {"P", "L", "D"}},
                 {{" p \nC\n", "l", " d"}, {"P", "L", "D"}},
                 {{"\n", "\n", " \nL"}, {"C", "D", "D"}},
                 {{"X\n", "DL\n", "C\n"}, {"", "", ""}}};
    for (const auto& each : cases) {
        write(each.lines);
        EXPECT_EQ(loadFormSetup(), each.setup) << qPrintable(each.lines.join('|'));
    }
}

TEST_F(PrintSettings, AreWrittenAndHoldAtOnce) {
    const struct {
        FormSetup setup;
        const char *files, *session;
    } cases[] = {{{"P", "L", "D"}, "P\nL\nD\n", "PLD"},
                 {{"C", "D", "L"}, "C\nD\nL\n", "CDL"},
                 {{}, "C\nD\nD\n", "CDD"}};
    for (const auto& each : cases) {
        EXPECT_TRUE(isDone(saveFormSetup(each.setup)));
        EXPECT_EQ(written(), each.files);
        EXPECT_EQ(inSession(), each.session);
    }
    // The second cannot be written: the third stays.
    QFile::remove(path("CheckPrinter.ini"));
    ASSERT_TRUE(QDir(folder_.path()).mkdir("CheckPrinter.ini"));
    const Outcome outcome = saveFormSetup({"P", "L", "L"});
    ASSERT_TRUE(std::holds_alternative<Fault>(outcome));
    EXPECT_FALSE(std::get<Fault>(outcome).box.text.isEmpty());
    EXPECT_EQ(contentOf(path("Check.ini")) + contentOf(path("Printer.ini")), "P\nD\n");
}

TEST_F(PrintSettings, TheHubPrintsChecksOrTheVoucher) {
    CheckChoice choice;
    person::look(&choice);
    const struct {
        QStringList clicks;
        const char* fault;
        bool printsChecks;
    } cases[] = {{{}, "Please Select What To Print! Check or Voucher!", false},
                 {{"optChecks"}, "", true},
                 {{"optVoucher"}, "", false},
                 {{"optVoucher", "optChecks"}, "", true},
                 {{"optChecks", "optVoucher"}, "", false},
                 {{"optChecks", "optChecks"}, "Please Select What To Print! Check or Voucher!", false}};
    for (const auto& each : cases) {
        choice.startAnew();
        for (const QString& click : each.clicks) person::click(&choice, click);
        const auto fault = choice.fault();
        EXPECT_EQ(fault ? fault->box.text : QString(), each.fault) << qPrintable(each.clicks.join(' '));
        EXPECT_EQ(choice.printsChecks(), each.printsChecks) << qPrintable(each.clicks.join(' '));
    }
    for (const char* both : {"optChecks", "optVoucher"})
        person::find<QCheckBox>(&choice, both)->setChecked(true);
    EXPECT_EQ(choice.fault()->box.text, "You cannot Print Checks and Voucher at the Same Time!");
}

TEST_F(PrintSettings, TheHubKeepsTheBookThatWasChosenLast) {
    CheckChoice choice;
    person::look(&choice);
    const struct {
        const char *file, *click, *kept;
    } cases[] = {{"C\n", "optPersonal", "P\n"},
                 {"p\n", "optCommercial", "C\n"},
                 {"c\n", "optChecks", "c\n"},
                 {"\n", "optVoucher", "\n"}};
    for (const auto& each : cases) {
        writeFile(path("Check.ini"), each.file);
        choice.startAnew();
        person::click(&choice, each.click);
        EXPECT_FALSE(choice.keepBook());
        EXPECT_EQ(contentOf(path("Check.ini")), each.kept) << each.file;
    }
    QFile::remove(path("Check.ini"));
    ASSERT_TRUE(QDir(folder_.path()).mkdir("Check.ini"));
    choice.startAnew();
    person::click(&choice, "optCommercial");
    EXPECT_TRUE(choice.keepBook());
}
