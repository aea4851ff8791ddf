#include "sales/frmReceiptEntry.h"
#include "platform/ui/screen_registry.h"
#include "sales/receipts.h"
#include "support/box_script.h"
#include "support/screen_driver.h"

using person::press;
using person::read;
using ::testing::ElementsAre;

namespace {
class ReceiptEntry : public Receipts {
  protected:
    void SetUp() override {
        Receipts::SetUp();
        ScreenRegistry::instance().add("frmReceiptEntry", [] { return new frmReceiptEntry; });
        store.run("UPDATE tblUserMaster SET PrintSIAccess = False");
        screen = static_cast<frmReceiptEntry*>(ScreenRegistry::instance().open("frmReceiptEntry"));
        person::look(screen);
        person::fill(screen, "cboCustomer", "Nena");
    }
    void TearDown() override {
        if (popup()) person::click(popup(), "cmdCancel");
        screen->mblnUpdated = false;
        screen->unload();
        person::settle();
        Receipts::TearDown();
    }
    ChildScreen* popup() { return ScreenRegistry::instance().opened("frmAddReceipt"); }
    void fill(const char* field, const QString& text) {
        person::fill(popup(), field, text);
        press(Qt::Key_Return);
    }
    void pressOK() {
        person::goTo(popup(), "cmdSave");
        press(Qt::Key_Return);
    }
    void addLine(int which, const char* discount, const char* payment) {
        fill("txtSANo", orderNo(which));
        fill("txtDiscount", discount);
        fill("txtPayment", payment);
        pressOK();
    }
    std::vector<std::string> lines() {
        std::vector<std::string> texts;
        for (const QStringList& row : person::find<ListView>(screen, "lvwItems")->rows())
            texts.push_back(row.join(" | ").toStdString());
        return texts;
    }
    void closePopup() {
        person::click(popup(), "cmdCancel");
        person::look(screen);
    }

    BoxScript boxes;
    QPointer<frmReceiptEntry> screen;
};

TEST_F(ReceiptEntry, PaysThreeOrdersByCheckAndInCash) {
    person::click(screen, "cmdAdd");
    fill("txtSANo", "1001");
    ASSERT_TRUE(ScreenRegistry::instance().opened("frmSalesFound"))
        << "a part of a number: the orders with it";
    press(Qt::Key_Return);
    EXPECT_EQ(person::focusName(), "txtDiscount");
    fill("txtDiscount", "10");
    EXPECT_EQ(read(popup(), "txtRequired"), "900.00");
    fill("txtPayment", "900");
    fill("txtCheckNo", "bpi 7");
    fill("txtCheckDate", "3/20/26");
    press(Qt::Key_Return);
    EXPECT_EQ(person::focusName(), "txtSANo");
    addLine(2, "0", "200");
    person::goTo(popup(), "chkCash");
    press(Qt::Key_Space);
    EXPECT_FALSE(person::control(popup(), "txtCheckNo")->isEnabled());
    addLine(3, "0", "1000.01");
    closePopup();
    EXPECT_THAT(lines(),
                ElementsAre("03-1001-2026 | 03/03/2026 | 1,000.00 | 10.00 | 900.00 | BPI 7 | 03/20/2026 | ",
                            "03-1002-2026 | 03/03/2026 | 500.00 | 0.00 | 200.00 | BPI 7 | 03/20/2026 | ",
                            "03-1003-2026 | 03/03/2026 | 1,000.01 | 0.00 | 1,000.01 |  |  | "));
    EXPECT_EQ(read(screen, "txtNetAmount") + ' ' + read(screen, "txtCount"), "2,100.01 3");
    EXPECT_FALSE(person::control(screen, "cboCustomer")->isEnabled()) << "a receipt belongs to one customer";
    boxes.expect("Saved!", "Payment Successfully Posted!");
    EXPECT_TRUE(screen->SaveRecord());
    EXPECT_EQ(balance(1) + ' ' + balance(2) + ' ' + balance(3), "0 3000000 0");
    EXPECT_EQ(read(screen, "txtCode") + ' ' + read(screen, "txtCount"), "2 0");
}

TEST_F(ReceiptEntry, RefusesWhatIsNotToBePaid) {
    ASSERT_EQ(said(post({pays(2, "100", "5")})), "done");
    const struct {
        int order;
        const char *discount, *payment, *checkNo, *text, *focus;
    } cases[]{
        {1, "10", "950", "",
         "System Does Not Allow Over Payment! Balance of Sales Order No. 03-1001-2026 is only 900.00. "
         "System Detected Over Payment of -50",
         "txtPayment"},
        {2, "0", "1", "",
         "You Have Already Posted a Payment Discount on This Delivery Receipt! You Cannot Anymore Post "
         "Additional Discount!",
         "txtDiscount"},
        {3, "0", "1", "Cash",
         "You Cannot Enter 'CASH' as your Check No.! If this is a cash payment you may want to check Cash "
         "Payment Option or Leave Check No. Blank!",
         "txtCheckNo"},
        {4, "0", "1", "", "This Sales Order No. 03-1004-2026 does not belong to Nena!", "txtSANo"}};
    person::click(screen, "cmdAdd");
    for (const auto& row : cases) {
        if (row.order == 4) boxes.expect("Error!", "Journal No. 03-1004-2026 does not belong to Nena!");
        if (*row.checkNo) person::fill(popup(), "txtCheckNo", row.checkNo);
        boxes.expect("Error!", row.text);
        addLine(row.order, row.discount, row.payment);
        boxes.verify();
        EXPECT_EQ(person::focusName(), row.focus);
    }
    EXPECT_TRUE(lines().empty());
}

// A line under change has left the list; Close writes it back through the same checks.
TEST_F(ReceiptEntry, TakesALineOutForItsChange) {
    person::click(screen, "cmdAdd");
    addLine(1, "10", "900");
    closePopup();
    const auto before = lines();
    person::doubleClickRow(person::find<ListView>(screen, "lvwItems"), 0);
    EXPECT_TRUE(lines().empty());
    EXPECT_EQ(read(popup(), "txtRequired"), "900.00");
    boxes.expect("Please Don't Press X Button!");
    popup()->close();
    fill("txtPayment", "800");
    closePopup();
    EXPECT_EQ(lines().size(), 1U);
    EXPECT_NE(lines(), before);
    EXPECT_EQ(read(screen, "txtNetAmount"), "800.00");
}

TEST_F(ReceiptEntry, KeepsWhatWasTypedWhenAnotherClerkHasPaid) {
    person::click(screen, "cmdAdd");
    addLine(1, "0", "1000");
    closePopup();
    ASSERT_EQ(said(post({pays(1, "1000")})), "done");
    boxes.expect("Error!", "Cannot Save Payment! Sales Order No. 03-1001-2026 had already been Paid!");
    EXPECT_FALSE(screen->SaveRecord());
    EXPECT_EQ(lines().size(), 1U);
    EXPECT_EQ(read(screen, "txtCode"), "1");
}
}  // namespace
