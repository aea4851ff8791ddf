#include "platform/clock.h"
#include "platform/ui/file_dialogs.h"
#include "platform/ui/screen_registry.h"
#include "reports/frame/report_output.h"
#include "reports/frame/report_run.h"
#include "reports/golden.h"
#include "reports/outstanding/frmPrintOutstanding.h"
#include "reports/outstanding/outstanding_reports.h"
#include "reports/register.h"
#include "support/box_script.h"
#include "support/screen_tour.h"
#include "support/statement_count.h"
#include "support/test_store.h"

#include <QRadioButton>

namespace {
// Two contacts of one name, one of them pays at once; one that has paid all, and one that has paid too much.
void owe(Connection& store) {
    addContact(store,
               {.id = "C1", .name = "Reyes Trading", .terms = amount(30), .creditLimit = amount(50000)});
    addContact(store, {.id = "C2", .name = "Reyes Trading"});
    addContact(store, {.id = "C3", .name = "Abella Mill", .terms = amount(15)});
    addContact(store, {.id = "C4", .name = "Uy Mining", .terms = amount(60)});
    const struct {
        const char* number;
        QDate date;
        const char* contact;
        double balance;
    } documents[] = {
        {"04-03", QDate(2026, 4, 3), "C4", -1250.5}, {"02-01", QDate(2026, 2, 1), "C1", 900},
        {"02-30", QDate(2026, 2, 28), "C1", 100.25}, {"02-02", QDate(2026, 2, 1), "C2", 1234567.89},
        {"03-01", QDate(2026, 3, 1), "C3", 0},       {"03-02", QDate(2026, 3, 2), "GONE", 77}};
    for (const auto& each : documents) {
        insertRow(store, "tblSalesMaster", "RefNo, RefDate, ContactNo, Balance",
                  {each.number, each.date, each.contact, bound(amount(each.balance))});
        insertRow(store, "tblPurchaseMaster", "PurchaseNo, PurchaseDate, ContactNo, Balance",
                  {each.number, each.date, each.contact, bound(amount(each.balance))});
    }
}

QString printed(Connection& store, const char* kind, const char* option) {
    auto report = outstandingReport(store, {.kind = kind, .selection = option});
    return report ? reportOutput::plainText(runReport(*report)) : QString();
}

ScreenArguments ofKind(const char* kind) {
    ScreenArguments arguments;
    arguments.kind = kind;
    arguments.choice = "optDetailed";
    return arguments;
}

class Outstanding : public ::testing::TestWithParam<const char*> {};

TEST_P(Outstanding, DocumentsAndContacts) {
    TestStore store;
    owe(store.connection());
    Clock::freeze(QDateTime(QDate(2026, 4, 9), QTime(14, 5, 6)));
    QString text;
    for (const char* option : {"optDetailed", "optSummary"}) {
        const int statements = statementsOf(store.connection(),
                                            [&] { text += printed(store.connection(), GetParam(), option); });
        EXPECT_EQ(statements, 2);
    }
    Clock::unfreeze();
    compareWithGolden(QString("outstanding_%1.txt").arg(GetParam()), text);
}

INSTANTIATE_TEST_SUITE_P(Sides, Outstanding, ::testing::Values("R", "P"));

// Whatever is chosen but a file, the report is shown first; a name that is none of a file has two refusals.
TEST_F(SessionTest, OutstandingReportsAreShown) {
    owe(store());
    registerReportScreens();
    ScreenRegistry& screens = ScreenRegistry::instance();
    const auto print = [&](const char* option) {
        auto* screen = qobject_cast<frmPrintOutstanding*>(screens.opened("frmPrintOutstanding"));
        ASSERT_TRUE(screen);
        screen->findChild<QRadioButton*>(option)->setChecked(true);
        screen->PrintRecord();
    };
    BoxScript boxes;
    const std::pair<const char*, const char*> kinds[] = {{"R", "prtReceivableOutstanding"},
                                                         {"P", "prtPayableOutstanding"}};
    for (const auto& [kind, report] : kinds) {
        screens.open("frmPrintOutstanding", ofKind(kind));
        print("optPrinter");
        EXPECT_TRUE(screens.opened(report));
        closeOpenScreens();
    }
    screens.open("frmPrintOutstanding", ofKind("R"));
    const struct {
        const char *option, *name, *refusal;
    } files[] = {{"optRTF", "here.rtf", "Please Specify a Valid Filename and Location!"},
                 {"optASCII", "here.txt", "Please Specify a valid Filename and Location!"},
                 {"optASCII", "", "Please Specify a Valid Filename and Location!"}};
    for (const auto& each : files) {
        desk::setDoors({.saveFile = [&](const QString&) { return QString(each.name); }});
        boxes.expect("No File!", each.refusal);
        print(each.option);
    }
    desk::setDoors({});
    closeOpenScreens();
}
}  // namespace
