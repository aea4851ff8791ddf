#include "platform/clock.h"
#include "platform/ui/list_view.h"
#include "sales/frmSalesEntry.h"
#include "shell/frame_fixture.h"
#include "support/screen_driver.h"

using person::press;

namespace {
// The sales entry screen within the main window, on books with one item and one customer.
class OrderEntryInFrame : public FrameTest {
  protected:
    void SetUp() override {
        FrameTest::SetUp();
        addItem(store(), {"I1", "Rice", amount(10), amount(15), amount(13)});
        addContact(store(), {.id = "C1", .name = "Nena"});
        addPurchase(store(), {"P1", Clock::today(), "C1", {{"I1", amount(10), amount(10)}}});
        ScreenRegistry::instance().add("frmSalesEntry", [] { return new frmSalesEntry; });
        logIn();
        entry = static_cast<frmSalesEntry*>(ScreenRegistry::instance().open("frmSalesEntry"));
        person::settle();
        person::type("Nena");
    }
    void TearDown() override {
        entry->mblnUpdated = false;
        entry->unload();
        FrameTest::TearDown();
    }

    ChildScreen* popup(const char* name) { return ScreenRegistry::instance().opened(name); }
    void clickBesideIt() {
        frame->activateWindow();
        frame->setFocus();
        person::settle();
    }

    BoxScript boxes;
    frmSalesEntry* entry = nullptr;
};

TEST_F(OrderEntryInFrame, TakesItsMnemonicsBeforeTheMenus) {
    press(Qt::Key_A, Qt::AltModifier);
    ASSERT_TRUE(popup("frmAddItem")) << "not the Administration menu";
    person::fill(popup("frmAddItem"), "txtDiscount", "100");
    boxes.expect("Error!", "Discount Percentage should not be Equal or Greater than 100%");
    press(Qt::Key_O, Qt::AltModifier);
    EXPECT_EQ(person::focusName(), "txtDiscount") << "a field at fault is not left";
    person::fill(popup("frmAddItem"), "txtDiscount", "10");
    press(Qt::Key_C, Qt::AltModifier);
    EXPECT_FALSE(popup("frmAddItem"));
}

TEST_F(OrderEntryInFrame, LineDialogKeepsTheFrontOfTheFrame) {
    person::click(entry, "cmdAdd");
    boxes.expect("Lost Focus!", "Please Click on Close Button to Exit!");
    clickBesideIt();
    boxes.verify();
    ASSERT_TRUE(popup("frmAddItem"));
    EXPECT_TRUE(popup("frmAddItem")->isActiveWindow());
    boxes.expect("Lost Focus!");
    choose("mnuRecordItem_4");
    boxes.verify();
    person::click(popup("frmAddItem"), "cmdCancel");
}

TEST_F(OrderEntryInFrame, QuantityPopupGivesWay) {
    entry->addLine(makeOrderLine("I1", "Rice", "PC", amount(1), amount(1), amount(15), amount(0)));
    person::goTo(entry, "lvwItems");
    person::find<ListView>(entry, "lvwItems")->setCurrentRow(0);
    press(Qt::Key_Return);
    ASSERT_TRUE(popup("frmInputInList"));
    clickBesideIt();
    EXPECT_FALSE(popup("frmInputInList"));
}
}  // namespace
