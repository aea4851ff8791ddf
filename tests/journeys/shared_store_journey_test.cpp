#include "journeys/journey.h"

#include "books/record_lock.h"
#include "sales/sales_document.h"

// Both screens propose the same number; the second to save is told so, and takes the next one.
TEST_F(Journey, TwoWorkstationsWantOneNumber) {
    play("log in ADMIN admin");
    play("purchase from Rizal Mill\n  10 x RICE at 5.00");
    QWidget* entry = compose("sale to Cora Store\n  2 x RICE at 10.00");
    ASSERT_TRUE(entry);
    const QString number = person::read(entry, "txtCode");

    Connection other;
    openOther(other);
    OrderDocument theirs = newOrder(other, salesOrders);
    ASSERT_EQ(theirs.code, number);
    theirs.contactName = "Cora Store";
    const Currency one = Currency::fromInteger(1);
    theirs.lines = {makeOrderLine("1001", "RICE", "PC", one, one, Currency::fromInteger(10), {})};
    ASSERT_TRUE(isDone(saveOrder(other, salesOrders, theirs)));

    {
        BoxScript boxes;
        boxes.expect("Error!", "Duplicate Reference No., Please Assign Another!");
        person::press(Qt::Key_S, Qt::ControlModifier);
    }
    EXPECT_EQ(person::read(entry, "txtCode"), number);
    EXPECT_EQ(person::read(entry, "txtAmount"), "20.00");
    person::pushButton(entry, "cmdIncrement");
    const QString next = person::read(entry, "txtCode");
    EXPECT_NE(next, number);
    {
        BoxScript boxes;
        boxes.expect({}, "Do you want to Print Delivery Receipt for this Sales Transaction?", BoxAnswer::No);
        boxes.expect("Saved!", "Record Successfully Saved!");
        person::press(Qt::Key_S, Qt::ControlModifier);
    }
    EXPECT_EQ(figure("TotalAmount", "tblSalesMaster", "RefNo", number), "10.00");
    EXPECT_EQ(figure("TotalAmount", "tblSalesMaster", "RefNo", next), "20.00");
    EXPECT_EQ(itemFigure("Balance"), "7.00");
}

// The lock that a killed program left behind keeps everybody out until it is released.
TEST_F(Journey, ADocumentLeftLockedIsReleased) {
    play("log in ADMIN admin");
    const QString number = playOne("purchase from Rizal Mill\n  10 x RICE at 5.00");
    {
        Connection killed;
        openOther(killed);
        ASSERT_EQ(takeRecordLock(killed, purchaseBook, number), LockResult::Taken);
    }
    purchase(number);
    {
        BoxScript boxes;
        boxes.expect(
            "Record Lock!",
            "Record is Being Locked! You Cannot Edit This Record! Please Ask Administrator to Unlock "
            "Record!");
        person::press(Qt::Key_Return);
    }
    EXPECT_FALSE(person::isOpen("frmPurchaseEntry"));

    person::choose("mnuAdminItem_2");
    QWidget* locks = person::screen("frmRecordLock");
    person::goTo(locks, "cboJournal");
    person::type("Pu");
    EXPECT_EQ(person::read(locks, "cboJournal"), "Purchase Order Entry");
    person::fill(locks, "cboSelection", number);
    EXPECT_EQ(person::read(locks, "cboSelection"), number);
    {
        BoxScript boxes;
        boxes.expect("Are you Sure?",
                     "This will Lock P.O. No. " + number +
                         "! Please Make Sure That There is No One Editing or Printing Record at the Moment!",
                     BoxAnswer::Yes);
        boxes.expect("Released!", "Record Successfully Released!");
        person::pushButton(locks, "cmdUnlock");
    }
    person::press(Qt::Key_W, Qt::ControlModifier);
    purchase(number);
    person::press(Qt::Key_Return);
    EXPECT_EQ(person::read(person::screen("frmPurchaseEntry"), "txtCode"), number);
    // While it is open, nobody else gets it; leaving it unlocks it.
    Connection other;
    openOther(other);
    EXPECT_EQ(takeRecordLock(other, purchaseBook, number), LockResult::Locked);
    person::press(Qt::Key_Escape);
    EXPECT_EQ(takeRecordLock(other, purchaseBook, number), LockResult::Taken);
}
