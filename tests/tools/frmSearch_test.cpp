#include "tools/search/frmSearch.h"

#include "foundation/shared_routines.h"
#include "platform/store/transaction.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/list_view.h"
#include "support/box_script.h"
#include "support/program_driver.h"
#include "support/screen_driver.h"
#include "support/test_store.h"
#include "support/users.h"

#include <QApplication>
#include <QTest>

namespace {

class SearchScreenTest : public SessionTest {
  protected:
    void SetUp() override {
        SessionTest::SetUp();
        Transaction unit(store());
        for (int i = 0; i < 1500; ++i)
            addContact(store(), {.id = QString::number(i), .name = QString("Contact %1").arg(i)});
        addItem(store(), {.code = "1001", .description = "RICE"});
        unit.commit();
    }
    void TearDown() override {
        delete screen;
        SessionTest::TearDown();
    }
    void open(const char* kind) {
        delete screen;
        person::look(screen = new frmSearch);
        auto* type = person::find<ComboBox>(screen, "cboType");
        type->setText(kind);
        emit type->picked();
        person::settle();
    }
    int rows(const char* list) { return person::find<ListView>(screen, list)->rowCount(); }
    void waitForRows(const char* list, int count) {
        person::waitFor([&] { return rows(list) == count; }, QString("%1 rows").arg(count));
    }
    QPointer<frmSearch> screen;
    BoxScript boxes;
};

TEST_F(SearchScreenTest, TheContactsFollowTheKeysAndALaterKeyOvertakes) {
    open("Inquire Contact Balance");
    EXPECT_EQ(person::focusName(), "txtCustomer");
    // Both keys come before the rows of the first one are all there.
    QTest::keyClicks(QApplication::focusWidget(), "1");
    EXPECT_EQ(rows("lvwCustomer"), 100);
    QTest::keyClicks(QApplication::focusWidget(), "499");
    EXPECT_EQ(rows("lvwCustomer"), 1);
    person::settle();
    EXPECT_EQ(rows("lvwCustomer"), 1);
    person::press(Qt::Key_F9);
    waitForRows("lvwCustomer", 1500);
    EXPECT_EQ(person::read(screen, "txtCustomer"), "");
    person::press(Qt::Key_F11);
    EXPECT_EQ(rows("lvwCustomer"), 0);
    person::press(Qt::Key_F7);
    EXPECT_EQ(person::focusName(), "cboType");
    boxes.expect("Nothing to Print!", "No Records to print...");
    person::fill(screen, "txtCustomer", "nobody");
    person::press(Qt::Key_F8);
    person::press(Qt::Key_Escape);
    EXPECT_FALSE(screen);
}

TEST_F(SearchScreenTest, TheItemsFollowTheFieldsThatAreLeft) {
    open("Inquire Item");
    for (int field = 0; field < 5; ++field) person::press(Qt::Key_Tab);
    EXPECT_EQ(rows("lvwItem"), 0);
    person::fill(screen, "txtItemCode", "1");
    person::press(Qt::Key_Right);
    EXPECT_EQ(person::focusName(), "txtDescription");
    EXPECT_EQ(rows("lvwItem"), 1);
    person::press(Qt::Key_Left);
    person::press(Qt::Key_F5);
    EXPECT_EQ(rows("lvwItem"), 1);
    EXPECT_EQ(person::read(screen, "txtItemCode"), "");
    person::click(screen, "cmdClear");
    EXPECT_EQ(rows("lvwItem"), 0);
}

TEST_F(SearchScreenTest, ADateThatIsNoneIsRefusedAndAJournalRelabels) {
    open("Inquire Transaction Balance");
    EXPECT_EQ(person::read(screen, "lblReference"), "D.R. No. :");
    auto* journal = person::find<ComboBox>(screen, "cboJournal");
    journal->setText("Purchase Journal");
    emit journal->picked();
    EXPECT_EQ(person::read(screen, "lblReference"), "P.O. No. :");
    boxes.expect("Error!", "Invalid Date Value!");
    person::fill(screen, "txtRefDate", "99/99/2026");
    person::press(Qt::Key_Tab);
    // The person gets away from it all the same.
    boxes.expect("Error!", "Invalid Date Value!");
    person::press(Qt::Key_F7);
    EXPECT_EQ(person::focusName(), "cboType");
}

TEST_F(SearchScreenTest, OnlyTheKindsOfTheUserAreOffered) {
    addUser(store(), "clerk", "abc", {}, {"InqContactAccess"});
    addUser(store(), "nobody", "abc");
    session().CurrentUserCode = "clerk";
    open("Inquire Item");
    EXPECT_EQ(person::find<ComboBox>(screen, "cboType")->count(), 1);
    EXPECT_FALSE(person::control(screen, "cmdPrint")->isEnabled());
    session().CurrentUserCode = "nobody";
    open("");
    boxes.expect("Error!", "Please Select Proper Search Type!");
    person::press(Qt::Key_F9);
}

}  // namespace
