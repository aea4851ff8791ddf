#include "journeys/journey.h"

TEST_F(Journey, TheRoadOfOneSale) {
    play("log in ADMIN admin");
    onDay(2);
    play("purchase from Rizal Mill\n  10 x RICE at 5.00");
    onDay(3);
    play("purchase from Rizal Mill\n  10 x RICE at 6.00");
    onDay(4);
    const QString first = playOne("sale to Cora Store\n  4 x RICE at 10.00");
    onDay(5);
    const QString second = playOne("sale to Cora Store\n  8 x RICE at 10.00");
    onDay(6);
    const QStringList third = play(
        "sale to Cora Store\n"
        "  12 x RICE at 10.00\n"
        "  refused\n"
        "  1 x RICE at 10.00\n"
        "purchase from Rizal Mill\n"
        "  4 x RICE at 7.00\n");
    ASSERT_EQ(third.size(), 2);
    sale(third[0]);
    deleteCurrent();
    const QString last = playOne("sale to Cora Store\n  12 x RICE at 10.00");
    EXPECT_EQ(itemFigure("Balance"), "0.00");

    purchase(third[1]);
    deleteCurrent();
    EXPECT_EQ(itemFigure("Balance"), "-4.00");
    play("end of day");
    EXPECT_EQ(costOf(first), "20.00");
    EXPECT_EQ(costOf(second), "42.00");
    EXPECT_EQ(costOf(last), "48.00");
}

TEST_F(Journey, APurchaseEditedAfterTheEndOfDayCostsItsSalesAnew) {
    play("log in ADMIN admin");
    const QString bought = playOne("purchase from Rizal Mill\n  10 x RICE at 5.00");
    const QString sold = playOne("sale to Cora Store\n  4 x RICE at 10.00\nend of day");
    EXPECT_EQ(costOf(sold), "20.00");
    EXPECT_EQ(itemFigure("CostPrice"), "5.00");

    purchase(bought);
    person::press(Qt::Key_Return);
    QWidget* entry = person::screen("frmPurchaseEntry");
    person::goTo(entry, "lvwItems");
    person::press(Qt::Key_Home);
    person::press(Qt::Key_F2);
    person::screen("frmAddItem");
    person::walkTo("txtCost");
    person::type("6");
    person::walkTo("txtServe");
    person::press(Qt::Key_Return);
    person::press(Qt::Key_Escape);
    person::waitFor([] { return !person::isOpen("frmAddItem"); }, "the line dialog to close");
    EXPECT_EQ(person::read(entry, "txtAmount"), "60.00");
    {
        BoxScript boxes;
        boxes.expect({}, "Do you want to Print Purchase Order for this Purchase Transaction?", BoxAnswer::No);
        boxes.expect("Saved!", "Record Successfully Saved!");
        person::press(Qt::Key_S, Qt::ControlModifier);
    }
    EXPECT_EQ(costOf(sold), "20.00");
    play("end of day");
    EXPECT_EQ(costOf(sold), "24.00");
    EXPECT_EQ(itemFigure("CostPrice"), "6.00");
    EXPECT_EQ(figure("Balance", "tblPurchaseMaster", "PurchaseNo", bought), "60.00");
}
