#include "shell/frame_fixture.h"

#include "books/posting_queue.h"
#include "platform/clock.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/data_grid.h"
#include "platform/ui/file_dialogs.h"
#include "platform/ui/list_view.h"
#include "platform/ui/text_box.h"
#include "reports/register.h"
#include "shell/child_area.h"
#include "shell/frmShortcuts.h"
#include "shell/menu_catalogue.h"
#include "support/files.h"
#include "support/screen_checks.h"
#include "support/screen_driver.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QDialog>
#include <QLabel>
#include <QLayout>
#include <QListWidget>
#include <QMenu>
#include <QStatusBar>
#include <QTest>
#include <QToolButton>

namespace {

constexpr const char* stillWaiting =
    "There are Still Transactions for Posting! Do you still want to Continue?";
constexpr const char* longTime = "It May Take a Long Time to Re-Compute Balances! Do you want to Continue?";

// All that a person can reach by menu: the items that are seen and enabled, under menus that are.
QStringList reachable(const mdiMain* frame) {
    QStringList names;
    for (const QMenu* menu : frame->findChildren<QMenu*>()) {
        if (!menu->menuAction()->isEnabled()) continue;
        for (const QAction* action : menu->actions())
            if (action->isEnabled() && action->isVisible() && !action->isSeparator() && !action->menu())
                names << action->objectName();
    }
    return names;
}

QStringList itemsWithARight() {
    QStringList names;
    for (const MenuTable& menu : menuCatalogue())
        for (const MenuItem& row : menu.rows)
            if (row.right) names << QString("%1_%2").arg(menu.items).arg(row.index);
    return names;
}

QStringList panelKeys(const mdiMain* frame) {
    const auto* list = frame->findChild<QListWidget*>("lvMenu");
    QStringList keys;
    for (int row = 0; row < list->count(); ++row) keys << list->item(row)->data(Qt::UserRole).toString();
    return keys;
}

void waitForTimers() {
    QTest::qWait(150);
    person::settle();
}

QLabel* panel(const mdiMain* frame, const QString& key) {
    return frame->findChild<QLabel*>("sbrMain_" + key);
}

// The administrator's main window, with nothing open.
class EmptyFrame : public FrameTest {
  protected:
    void SetUp() override {
        FrameTest::SetUp();
        logIn();
        opened("frmReorder")->unload();
    }
    BoxScript boxes;
};

TEST_F(FrameTest, AUserReachesWhatTheirRowsGrantAndNothingElse) {
    addUser(store(), "clerk", "abc", {100, 101, 106, 305, 402, 777});
    logIn("clerk");
    const QStringList items = reachable(frame);
    QStringList granted;
    for (const QString& name : itemsWithARight())
        if (items.contains(name)) granted << name;
    // 402 without 400, and 305 without 300, lie under menus that stay shut.
    EXPECT_EQ(granted, (QStringList{"mnuTransactionItem_2", "mnuManageCheckItem_1"}));
    EXPECT_FALSE(item("mnuFileItem_0")->isEnabled());
    EXPECT_FALSE(item("mnuMaintenanceItem_6")->isEnabled());
    EXPECT_FALSE(item("mnuAdminItem_2")->isVisible());
    EXPECT_FALSE(item("mnuAdminItem_1")->isVisible());
    EXPECT_EQ(panelKeys(frame), (QStringList{"frmSalesGrid", "frmCompanySetup", "frmSearch", "frmCalculator",
                                             "frmHelp", "Switch", "Exit"}));
    EXPECT_EQ(panel(frame, "UserName")->text(), "Current User : clerk - Administrator");
}

TEST_F(FrameTest, EndOfDayAndCashRegisterFollowTheirOwnFlags) {
    for (const QString flag : {"EndofDay", "POSSuper"}) {
        delete frame.data();
        addUser(store(), flag, "abc", {}, {flag});
        logIn(flag);
        EXPECT_EQ(item("mnuFileItem_0")->isEnabled(), flag == "EndofDay");
        EXPECT_EQ(item("mnuMaintenanceItem_6")->isEnabled(), flag == "POSSuper");
    }
}

TEST_F(EmptyFrame, TheAdministratorGetsTheRecordLockInPlaceOfTheHiddenItem) {
    EXPECT_EQ(item("mnuAdminItem_2")->text(), "&Transaction Record Lock...");
    EXPECT_TRUE(item("mnuAdminItem_2")->isVisible());
    EXPECT_TRUE(item("mnuAdminItem_1")->isVisible());
    EXPECT_TRUE(item("mnuFileItem_0")->isEnabled());
    ScreenRegistry::instance().add("frmRecordLock", [] { return new TestScreen("frmRecordLock"); });
    choose("mnuAdminItem_2");
    EXPECT_TRUE(opened("frmRecordLock"));
}

TEST_F(FrameTest, AUserWithoutARowGetsNoMainWindow) {
    session().CurrentUserCode = "ghost";
    showMain();
    EXPECT_EQ(ended, 1);
    EXPECT_EQ(ScreenRegistry::instance().host(), nullptr);
}

TEST_F(FrameTest, TrailingBlanksOfATypedCodeDoNotCostTheRights) {
    logIn("admin ");
    EXPECT_TRUE(item("mnuFileItem_0")->isEnabled());
    EXPECT_TRUE(item("mnuReportItem_30")->isEnabled());
}

TEST_F(FrameTest, TheFirstScreensComeByThemselves) {
    store().run("UPDATE tblSystemProfile SET CompanyName = 'Zevrin'");
    logIn();
    EXPECT_EQ(windows, QStringList{"frmDateChecker"});
    EXPECT_TRUE(opened("frmCompanySetup"));
    EXPECT_FALSE(opened("frmReorder")) << "over an open screen";
    EXPECT_TRUE(opened("frmCompanySetup")->isAncestorOf(QApplication::focusWidget()));
}

TEST_F(EmptyFrame, CommandsGoToTheActiveChildByNameAndMissOnesDoNothing) {
    TestScreen* first = open("frmItem");
    TestScreen* second = open("frmContacts");
    const auto tool = [this](const char* key) {
        return frame->findChild<QToolButton*>(QString("tbrMain_%1").arg(key));
    };
    EXPECT_TRUE(tool("New")->isEnabled() && tool("Edit")->isEnabled());
    EXPECT_FALSE(tool("Save")->isEnabled() || tool("First")->isEnabled()) << "the screen has none of them";
    EXPECT_EQ(tool("New")->toolTip(), "New Record (Ctrl+N)");
    for (const char* name : {"mnuRecordItem_0", "mnuRecordItem_2", "mnuRecordItem_3", "mnuRecordItem_4",
                             "mnuRecordItem_7", "mnuRecordItem_10", "mnuViewItem_3"})
        choose(name);
    for (const char* key : {"New", "Save", "Next", "Print", "Refresh"}) tool(key)->click();
    EXPECT_EQ(second->calls, (QStringList{"NewRecord", "EditRecord", "DeleteRecord", "RefreshRecord",
                                          "NewRecord", "PrintRecord", "RefreshRecord"}));
    EXPECT_EQ(first->calls, QStringList());
    choose("mnuRecordItem_5");
    EXPECT_FALSE(opened("frmContacts"));
    choose("mnuRecordItem_0");
    EXPECT_EQ(first->calls, QStringList{"NewRecord"});
}

// Whatever kind of control has the focus, and without a change to what it holds.
TEST_F(EmptyFrame, KeysWorkFromEveryKindOfField) {
    TestScreen* screen = open("frmItem");
    auto* box = new TextBox("txtBox");
    auto* open = new ComboBox("cboOpen", ComboBox::Open);
    auto* closed = new ComboBox("cboClosed", ComboBox::Closed);
    auto* list = new ListView("lvwList", {{"Item", 10}}, screen);
    auto* grid = new DataGrid("dbgGrid", "adcGrid", {{"Unit", "UnitCode"}}, screen);
    for (ComboBox* combo : {open, closed}) combo->addItems({"Delta", "Salt", "Nail"});
    box->setText("Delta");
    list->setRows({{"Delta"}, {"Salt"}});
    grid->setSource(store(), {"tblUnitMaster.*", "tblUnitMaster", "tblUnitMaster", {}, " ORDER BY UnitCode"});
    const QList<QWidget*> fields{box, open, closed, list, grid, new QDateEdit, new QCheckBox};
    for (QWidget* field : fields) {
        SCOPED_TRACE(field->metaObject()->className());
        screen->layout()->addWidget(field);
        field->setFocus();
        QTest::qWait(1);
        screen->calls.clear();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Delete, Qt::ShiftModifier);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_N, Qt::ControlModifier);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F5);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_S, Qt::ControlModifier);
        EXPECT_EQ(screen->calls, (QStringList{"DeleteRecord", "NewRecord", "RefreshRecord"}));
    }
    EXPECT_EQ(box->text(), "Delta");
    EXPECT_EQ(closed->text(), "Delta");
    EXPECT_EQ(list->rowCount(), 2);
    for (QWidget* field : {static_cast<QWidget*>(closed), static_cast<QWidget*>(list)}) {
        field->setFocus();
        for (const char* edit : {"mnuEditItem_2", "mnuEditItem_3", "mnuEditItem_4", "mnuEditItem_7"})
            choose(edit);
    }
    EXPECT_EQ(closed->text(), "Delta");
    open->setFocus();
    choose("mnuEditItem_7");
    choose("mnuEditItem_2");
    EXPECT_EQ(open->text(), "");
    choose("mnuEditItem_4");
    frame->findChild<QToolButton*>("tbrMain_Paste")->click();
    EXPECT_EQ(open->text(), "DeltaDelta");
    QTest::keyClick(grid, Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(opened("frmSearch"));
    ScreenRegistry::instance().open("frmItem");
    grid->setFocus();
    QTest::qWait(1);
    QTest::keyClick(grid, Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(opened("frmItem"));
}

TEST_F(EmptyFrame, ThePrintScreenTakesItsKindAndHidesTheReportsAsLongAsItIsOpen) {
    registerReportScreens();
    const QAction* reports = frame->findChild<QMenu*>("mnuReport")->menuAction();
    const std::pair<const char*, const char*> kinds[] = {{"mnuReportItem_2", "UnPrinted Purchase"},
                                                         {"mnuReportItem_3", "UnPrinted Delivery"},
                                                         {"mnuReportItem_4", "UnPrinted Payment"},
                                                         {"mnuReportItem_5", "UnPrinted Voucher"}};
    for (const auto& [name, caption] : kinds) {
        choose(name);
        ChildScreen* screen = ScreenRegistry::instance().opened("frmPrint");
        ASSERT_TRUE(screen) << name;
        EXPECT_EQ(screen->findChild<QAbstractButton*>("optUnPrinted")->text(), caption);
        EXPECT_FALSE(reports->isVisible());
        open("frmItem");
        EXPECT_FALSE(reports->isVisible());
        screen->unload();
        QTest::qWait(1);
        EXPECT_TRUE(reports->isVisible());
    }
}

TEST_F(EmptyFrame, WhatIsOwedPrintsForTheSideOfItsMenuEntry) {
    registerReportScreens();
    store().run("DELETE FROM tblSalesMaster");
    addContact(store(), {.id = "71", .name = "Rizal Mill"});
    insertRow(store(), "tblPurchaseMaster", "PurchaseNo, PurchaseDate, ContactNo, Balance",
              {"1", Clock::today(), "71", bound(amount(5))});
    const struct {
        const char *item, *screen, *title, *report;
    } entries[] = {{"mnuReportItem_7", "frmPrintOutstanding", "Print Outstanding Report...", nullptr},
                   {"mnuReportItem_8", "frmPrintLogBook", "Print Receivable Log Book...", nullptr},
                   {"mnuReportItem_11", "frmPrintOutstanding", "Print Outstanding Report...",
                    "prtPaySummaryOutstanding"},
                   {"mnuReportItem_12", "frmPrintLogBook", "Print Payable Log Book...", "prtPayableLogBook"}};
    for (const auto& entry : entries) {
        choose(entry.item);
        ChildScreen* screen = ScreenRegistry::instance().opened(entry.screen);
        ASSERT_TRUE(screen) << entry.item;
        EXPECT_EQ(screen->windowTitle(), entry.title);
        if (!entry.report) boxes.expect("Nothing to Print!", "No Records to Print...");
        screen->findChild<QAbstractButton*>("cmdOK")->click();
        EXPECT_TRUE(!entry.report || ScreenRegistry::instance().opened(entry.report)) << entry.item;
        screen->unload();
        QTest::qWait(1);
    }
}

TEST_F(EmptyFrame, TheStatusBarMirrorsTheFlagsAndKeepsItsLastText) {
    TestScreen* screen = open("frmItem");
    screen->mblnAddmode = true;
    waitForTimers();
    EXPECT_EQ(panel(frame, "EditMode")->text(), "New");
    EXPECT_EQ(panel(frame, "Status")->text(), "Up to date");
    choose("mnuViewItem_1");
    EXPECT_FALSE(frame->statusBar()->isVisible());
    screen->mblnAddmode = false;
    screen->mblnUpdated = true;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    waitForTimers();
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(panel(frame, "Status")->text(), "Editing...");
    screen->unload();
    waitForTimers();
    EXPECT_EQ(panel(frame, "EditMode")->text(), "Edit");
    EXPECT_EQ(panel(frame, "Status")->text(), "Up to date") << "nothing is edited any longer";
}

TEST_F(FrameTest, ThePanelLiesOverTheEmptyFrameOnly) {
    logIn();
    auto* shortcuts = frame->findChild<frmShortcuts*>();
    EXPECT_FALSE(shortcuts->isVisible());
    opened("frmReorder")->unload();
    waitForTimers();
    EXPECT_TRUE(shortcuts->isVisible());
    EXPECT_TRUE(shortcuts->property("mblnFocus").toBool());
    EXPECT_EQ(check::unnamedControls(frame), QStringList());
    EXPECT_EQ(panelKeys(frame).first(), "frmSalesGrid");
    QTest::keyClick(frame->findChild<QListWidget*>("lvMenu"), Qt::Key_Return);
    ASSERT_TRUE(opened("frmSalesGrid"));
    EXPECT_FALSE(shortcuts->isVisible());
    EXPECT_TRUE(opened("frmSalesGrid")->isVisible());

    store().run("UPDATE tblSystemProfile SET CompanyName = 'Tindahan'");
    opened("frmSalesGrid")->unload();
    waitForTimers();
    EXPECT_TRUE(std::ranges::any_of(shortcuts->findChildren<QLabel*>(), [](const QLabel* label) {
        return label->text() == "Tindahan";
    })) << "the company's new name";
}

TEST_F(EmptyFrame, CloseAllClosesNoneWhileOneStays) {
    const QStringList names{"frmItem", "frmContacts", "frmUnitGrid"};
    for (const QString& name : names) open(name);
    opened("frmContacts")->leaves = false;
    choose("mnuWindowItem_4");
    for (const QString& name : names) EXPECT_TRUE(opened(name)) << qPrintable(name);
    EXPECT_TRUE(frame->isVisible());
    opened("frmContacts")->leaves = true;
    opened("frmItem")->leaves = false;
    choose("mnuWindowItem_4");
    EXPECT_TRUE(opened("frmItem")) << "who agreed before is asked again";
}

TEST_F(EmptyFrame, LogoffAndExitStopAfterACancelAndRemindOfTheEndOfDay) {
    QueueBookForPosting(store(), "S", "11-1001-2026", "1", QDate(2026, 3, 2));
    open("frmItem")->leaves = false;
    choose("mnuFileItem_8");
    choose("mnuFileItem_9");
    EXPECT_TRUE(frame->isVisible());
    EXPECT_EQ(ended, 0);
    EXPECT_FALSE(windows.contains("frmOpening"));
    opened("frmItem")->leaves = true;
    boxes.expect("Zevrin!", "Please Don't Forget to Process End of Day Transactions!");
    choose("mnuFileItem_8");
    EXPECT_TRUE(windows.contains("frmOpening"));
    EXPECT_FALSE(frame && frame->isVisible());
}

TEST_F(EmptyFrame, AQueueThatCannotBeReadKeepsNobodyIn) {
    store().run("DROP TABLE tblForPosting");
    frame->close();
    EXPECT_FALSE(frame && frame->isVisible());
}

TEST_F(EmptyFrame, ReportsThatRestOnCostingAskWhileRowsAreWaiting) {
    QueueBookForPosting(store(), "S", "11-1001-2026", "1", QDate(2026, 3, 2));
    for (const char* name : {"mnuReportItem_20", "mnuReportItem_23", "mnuReportItem_24"}) {
        boxes.expect("Zevrin!", stillWaiting, BoxAnswer::No);
        choose(name);
    }
    EXPECT_FALSE(opened("frmPrintTransactions"));
    boxes.expect("Zevrin!", stillWaiting, BoxAnswer::Yes);
    choose("mnuReportItem_23");
    EXPECT_TRUE(opened("frmPrintStockCard"));
    choose("mnuReportItem_15");
    EXPECT_EQ(opened("frmPrintTransactions")->windowTitle(), "Print Sales Report...");
}

TEST_F(EmptyFrame, TheBalancesAreRecomputedOnlyAfterAYes) {
    store().run("INSERT INTO tblItemMaster (ItemCode, Description, Balance) VALUES ('A', 'NAIL', 70000)");
    const auto balance = [this] {
        return store().execute("SELECT Balance FROM tblItemMaster WHERE ItemCode = 'A'").currency("Balance");
    };
    boxes.expect("Continue?", longTime, BoxAnswer::No);
    choose("mnuFileItem_2");
    EXPECT_EQ(balance(), Currency::fromInteger(7));
    boxes.expect("Continue?", longTime, BoxAnswer::Yes);
    choose("mnuFileItem_2");
    EXPECT_EQ(balance(), Currency());
}

TEST_F(EmptyFrame, WindowsAreTiledListedAndBroughtForward) {
    open("frmItem");
    open("frmContacts");
    choose("mnuWindowItem_1");
    const auto windowOf = [this](const char* name) { return opened(name)->parentWidget()->geometry(); };
    EXPECT_EQ(windowOf("frmItem").top(), windowOf("frmContacts").top());
    EXPECT_LT(windowOf("frmItem").right(), windowOf("frmContacts").left());
    choose("mnuWindowItem_2");
    EXPECT_NE(windowOf("frmItem").topLeft(), windowOf("frmContacts").topLeft());

    auto* menu = frame->findChild<QMenu*>("mnuWindow");
    emit menu->aboutToShow();
    EXPECT_EQ(item("mnuWindowList_1")->text(), "&1 Screen frmItem R&&D");
    item("mnuWindowList_1")->trigger();
    EXPECT_EQ(frame->findChild<ChildArea*>()->activeChild(), opened("frmItem"));
    emit menu->aboutToShow();
    EXPECT_TRUE(item("mnuWindowList_1")->isChecked());
    EXPECT_EQ(item("mnuWindowList_3"), nullptr);
}

TEST_F(FrameTest, NoArrangementMakesAScreenSmallerThanItCanBeRead) {
    ScreenRegistry::instance().add("frmItem", [] {
        auto* screen = new TestScreen("frmItem");
        screen->setMinimumSize(700, 500);
        return screen;
    });
    logIn();
    TestScreen* screen = open("frmItem");
    open("frmContacts");
    for (const char* arrangement : {"mnuWindowItem_0", "mnuWindowItem_1", "mnuWindowItem_2"}) {
        choose(arrangement);
        const QRect room = screen->parentWidget()->contentsRect();
        EXPECT_GE(room.width(), 700) << arrangement;
        EXPECT_GE(room.height(), 500) << arrangement;
    }
}

TEST_F(EmptyFrame, FilesThatTheDesktopCannotOpenAreTold) {
    QString given;
    bool opens = false;
    desk::Doors doors;
    doors.openWithDesktop = [&](const QString& fileOrUrl) {
        given = fileOrUrl;
        return opens;
    };
    desk::setDoors(doors);
    for (const char* name : {"mnuHelpItem_1", "mnuAdminItem_4", "mnuHelpItem_2"}) {
        boxes.expect("Zevrin!");
        choose(name);
    }
    EXPECT_EQ(given, "");
    writeFile(folder_.filePath("Zevrin.hlp"), "help");
    boxes.expect("Zevrin!", "Nothing on this computer opens Zevrin.hlp.");
    choose("mnuHelpItem_1");
    EXPECT_EQ(given, folder_.filePath("Zevrin.hlp"));
    opens = true;
    writeFile(folder_.filePath("Support.ini"), "help@mabuhay.example\r\n");
    choose("mnuHelpItem_2");
    EXPECT_EQ(given, "mailto:help@mabuhay.example");
    desk::setDoors({});
}

TEST_F(EmptyFrame, TheFrameIsActivatedFromOutsideOnly) {
    const auto goOutside = [](int milliseconds) {
        emit qApp->applicationStateChanged(Qt::ApplicationInactive);
        QTest::qWait(milliseconds);
        emit qApp->applicationStateChanged(Qt::ApplicationActive);
        QTest::qWait(20);
        person::settle();
    };
    goOutside(0);
    EXPECT_FALSE(opened("frmReorder")) << "the moment between two windows of the program";
    goOutside(250);
    EXPECT_TRUE(opened("frmReorder"));
    opened("frmReorder")->unload();
    QDialog dialog(frame);
    dialog.setModal(true);
    dialog.show();
    goOutside(250);
    EXPECT_FALSE(opened("frmReorder")) << "a dialog is open";
}

}  // namespace
