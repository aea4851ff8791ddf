#include "purchases/frmPurchaseEntry.h"
#include "documents/order_books.h"
#include "platform/ui/list_view.h"
#include "platform/ui/screen_registry.h"
#include "support/box_script.h"
#include "support/screen_driver.h"

using person::press;
using person::read;

namespace {
// What the purchase side has of its own; the pattern is tried on the sales side.
class PurchaseEntry : public OrderBooks {
  protected:
    void SetUp() override {
        OrderBooks::SetUp();
        ScreenRegistry::instance().add("frmPurchaseEntry", [] { return new frmPurchaseEntry; });
    }
    void TearDown() override {
        if (screen) {
            screen->mblnUpdated = false;
            screen->unload();
        }
        person::settle();
        OrderBooks::TearDown();
    }

    void open(const QString& key = {}) {
        screen = static_cast<frmPurchaseEntry*>(
            ScreenRegistry::instance().open("frmPurchaseEntry", ScreenArguments{{}, key, {}}));
        person::look(screen);
    }
    ChildScreen* opened(const char* name) { return ScreenRegistry::instance().opened(name); }
    ListView* list() { return person::find<ListView>(screen, "lvwItems"); }

    BoxScript boxes;
    QPointer<frmPurchaseEntry> screen;
};

TEST_F(PurchaseEntry, RecordsAPurchaseWithKeys) {
    saved(purchaseOrders, {line("I1", "1", "1", "10")});
    open();
    EXPECT_EQ(read(screen, "txtCode"), "03-1002-2026");
    EXPECT_EQ(read(screen, "txtUpdatedBy"), "ADMIN");
    press(Qt::Key_Return);
    ASSERT_TRUE(opened("frmContactFound"));
    press(Qt::Key_Return);
    EXPECT_EQ(read(screen, "cboCustomer") + read(screen, "txtTerm"), "Nena30 Days");
    EXPECT_EQ(read(screen, "txtCreditLimit"), "5,000.00");
    EXPECT_EQ(read(screen, "txtCustomerBalance"), "10.00") << "what the firm owes this supplier";
    press(Qt::Key_Return);
    EXPECT_EQ(person::focusName(), "cmdAdd");
    press(Qt::Key_Return);
    ChildScreen* dialog = opened("frmAddItem");
    ASSERT_TRUE(dialog);
    EXPECT_EQ(read(dialog, "lblServe") + read(dialog, "lblPrice"), "DeliveredCost Price");
    person::type("I1");
    press(Qt::Key_Return);
    EXPECT_EQ(read(dialog, "txtCost"), "10.0000");
    person::fill(dialog, "txtDiscount", "0");
    person::fill(dialog, "txtCost", "16");
    person::fill(dialog, "txtOrder", "50");
    person::fill(dialog, "txtServe", "500");
    boxes.expect("Low Selling Price!",
                 "Cost Price is Greater than the Selling Price of this Product! Do you still want to "
                 "Continue?",
                 BoxAnswer::No);
    press(Qt::Key_Return);
    EXPECT_EQ(list()->rowCount(), 0);
    EXPECT_EQ(person::focusName(), "txtCost");
    boxes.expect("Low Selling Price!", "", BoxAnswer::Yes);
    person::click(dialog, "cmdSave");
    person::click(dialog, "cmdCancel");
    EXPECT_EQ(read(screen, "txtAmount"), "8,000.00");
    boxes.expect("", "Do you want to Print Purchase Order for this Purchase Transaction?", BoxAnswer::No)
        .expect("Saved!", "Record Successfully Saved!");
    EXPECT_TRUE(screen->SaveRecord());
    EXPECT_EQ(itemFigure("I1", "CostPrice"), money("16"));
    EXPECT_EQ(read(screen, "txtCode"), "03-1003-2026");
}

TEST_F(PurchaseEntry, ReceivesMoreThanOrderedAfterItsQuestion) {
    open(saved(purchaseOrders, {line("I1", "5", "0", "10")}));
    list()->setFocus();
    list()->setCurrentRow(0);
    press(Qt::Key_Return);
    EXPECT_EQ(read(opened("frmInputInList"), "lblServed"), "Delivered :");
    press(Qt::Key_Escape);
    EXPECT_EQ(list()->text(0, 3), "0");
    press(Qt::Key_Return);
    person::type("-8");  // a delivery takes nothing back
    for (const BoxAnswer answer : {BoxAnswer::No, BoxAnswer::Yes}) {
        EXPECT_EQ(person::focusName(), "txtValue");
        boxes.expect("Error!", "Item Delivered is Greater Than Your Order! Do You Wish to Continue?", answer);
        press(Qt::Key_Return);
    }
    EXPECT_EQ(list()->text(0, 3) + " " + list()->text(0, 8), "8 80.00");
    EXPECT_TRUE(screen->mblnUpdated);
}

TEST_F(PurchaseEntry, IsDirtiedByItsOwnActs) {
    open(saved(purchaseOrders, {line("I1", "5", "0", "10"), line("I2", "1", "1", "4")}));
    person::clickHeader(list(), OrderLine::Code);
    EXPECT_TRUE(screen->mblnUpdated) << "a click on a heading";
    screen->mblnUpdated = false;
    screen->NewRecord();
    EXPECT_FALSE(screen->mblnUpdated);
    for (const char* field : {"txtSerialCode", "cboCustomer", "txtRemarks", "txtRefDate"}) {
        person::fill(screen, field, "9");
        EXPECT_TRUE(std::exchange(screen->mblnUpdated, false)) << field;
    }
}

TEST_F(PurchaseEntry, ItsTwoButtonsWithOneMnemonicTakeTurnsAndPressNothing) {
    open(saved(purchaseOrders, {line("I1", "5", "0", "10")}));
    list()->setCurrentRow(0);
    person::goTo(screen, "txtRemarks");
    for (const char* name : {"cmdRemove", "cmdReceive", "cmdRemove", "cmdReceive"}) {
        press(Qt::Key_R, Qt::AltModifier);
        EXPECT_EQ(person::focusName(), name);
    }
    press(Qt::Key_Return);
    EXPECT_TRUE(opened("frmInputInList"));
    press(Qt::Key_Escape);
}

TEST_F(PurchaseEntry, NeedsASupplierForALine) {
    open();
    boxes.expect({"Error!", "Please Select Supplier First!"})
        .expect({"Does not exist!", "Supplier does not exist, please add this to Supplier Master File...",
                 BoxIcon::Information})
        .expect({"Does not exist!", "Supplier does not exist, please add this to Contact Master File...",
                 BoxIcon::Information});
    person::click(screen, "cmdAdd");
    person::fill(screen, "cboCustomer", "Somebody");
    person::click(screen, "cmdAdd");
    person::click(screen, "cmdEdit");
}

}  // namespace
