#include "journeys/journey.h"

#include "books/record_lock.h"
#include "purchases/purchase_document.h"

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
