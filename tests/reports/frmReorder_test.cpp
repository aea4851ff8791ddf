#include "reports/inventory/frmReorder.h"

#include "foundation/session.h"
#include "platform/ui/list_view.h"
#include "platform/ui/reminder.h"
#include "platform/ui/screen_registry.h"
#include "support/box_script.h"
#include "support/test_store.h"

#include <QToolButton>

#include <gtest/gtest.h>

namespace {
class ReorderList : public SessionTest {
  protected:
    void SetUp() override {
        SessionTest::SetUp();
        addContact(store(), {"C1", "Reyes Trading"});
    }

    void item(const char* code, const char* description, const char* supplier, int level, int balance) {
        store().run(
            {"INSERT INTO tblItemMaster (ItemCode, Description, SupplierCode, OrderLevel, Balance, Locator)"
             " VALUES (?, ?, ?, ?, ?, 'A1')",
             {QString(code), QString(description), QString(supplier), bound(Currency::fromInteger(level)),
              bound(Currency::fromInteger(balance))}});
    }
    void open() {
        screen = std::make_unique<frmReorder>();
        screen->receive({});
        list = screen->findChild<ListView*>("lvwItem");
    }
    QString codes() const {
        QString codes;
        for (const QStringList& row : list->rows()) codes += row[0];
        return codes;
    }
    void print() const { screen->findChild<QToolButton*>("imgPrint")->click(); }

    BoxScript boxes;
    std::unique_ptr<frmReorder> screen;
    ListView* list = nullptr;
};

TEST_F(ReorderList, ListsWhatIsBelowItsLevelByDescription) {
    item("A", "Zinc sheet", "C1", 10, 9);
    item("B", "Alum", "C9", 1500, -3);
    item("C", "At its level", "C1", 10, 10);
    item("D", "Above", "C1", 10, 11);
    open();
    const QList<QStringList> rows{{"B", "Alum", "", "1,500.00", "-3.00", "A1"},
                                  {"A", "Zinc sheet", "Reyes Trading", "10.00", "9.00", "A1"}};
    EXPECT_EQ(list->rows(), rows);
}

TEST_F(ReorderList, AskedForAgainItReadsTheStoreAgain) {
    open();
    EXPECT_EQ(list->rowCount(), 0);
    EXPECT_FALSE(screen->receive({reminderKind, {}, {}})) << "there is nothing to remind of";
    item("A", "Axe", "C1", 2, 1);
    EXPECT_TRUE(screen->receive({reminderKind, {}, {}}));
    EXPECT_EQ(codes(), "A");
    store().run("UPDATE tblItemMaster SET Balance = OrderLevel");
    screen->RefreshRecord();
    EXPECT_EQ(list->rowCount(), 0);
}

TEST_F(ReorderList, PrintTestsTheRightAndThenTheList) {
    item("A", "Axe", "C1", 2, 1);
    open();
    session().CurrentUserName = "Maria Santos";
    store().run("UPDATE tblUserMaster SET PrintItemAccess = False");
    boxes.expect("Access Denied!", "Maria Santos Have No Access in Printing This Report!");
    print();
    store().run("UPDATE tblUserMaster SET PrintItemAccess = True");
    store().run("DELETE FROM tblItemMaster");
    screen->RefreshRecord();
    boxes.expect("Nothing to Print!", "No Records to print...");
    print();
}

TEST_F(ReorderList, PrintShowsTheListAndAsksNothing) {
    item("A", "Axe", "C1", 2, 1);
    open();
    print();
    ChildScreen* paper = ScreenRegistry::instance().opened("prtReorder");
    ASSERT_TRUE(paper);
    EXPECT_TRUE(session().ReportFromEntry);
    EXPECT_TRUE(paper->unload());
}
}  // namespace
