#include "purchases/frmDisbursementEntry.h"
#include "platform/ui/list_view.h"
#include "platform/ui/screen_registry.h"
#include "purchases/voucher_books.h"
#include "support/box_script.h"
#include "support/screen_driver.h"

using person::press;
using person::read;

namespace {
constexpr const char* lostFocus = "Lost Focus!";

class DisbursementEntry : public VoucherBooks {
  protected:
    void SetUp() override {
        VoucherBooks::SetUp();
        ScreenRegistry::instance().add("frmDisbursementEntry", [] { return new frmDisbursementEntry; });
        store.run("UPDATE tblUserMaster SET PrintCVAccess = False");
    }
    void TearDown() override {
        if (screen) {
            screen->mblnUpdated = false;
            screen->unload();
        }
        person::settle();
        VoucherBooks::TearDown();
    }

    void open(const QString& key = {}) {
        screen = static_cast<frmDisbursementEntry*>(
            ScreenRegistry::instance().open("frmDisbursementEntry", ScreenArguments{{}, key, {}}));
        person::look(screen);
    }
    ChildScreen* opened(const char* name) { return ScreenRegistry::instance().opened(name); }
    ListView* list(const char* name) { return person::find<ListView>(screen, name); }
    QString enabled() {
        QString names;
        for (const char* name : {"cmdAdd", "cmdInsert", "cboCustomer", "cmdAddCheck"})
            if (person::control(screen, name)->isEnabled()) names += QString(name) + ' ';
        return names;
    }
    void addCheck(const char* number, const char* figure) {
        person::click(screen, "cmdAddCheck");
        ChildScreen* dialog = opened("frmAddCheck");
        ASSERT_TRUE(dialog);
        person::type(number);
        person::fill(dialog, "txtCheckAmount", figure);
        person::click(dialog, "cmdSave");
    }

    BoxScript boxes;
    QPointer<frmDisbursementEntry> screen;
};

TEST_F(DisbursementEntry, PaysAnOrderByTwoChecksThatTally) {
    open();
    EXPECT_EQ(read(screen, "txtCode"), "03-1001-2026");
    boxes.expect("Error!", "Please Select Payee First!");
    person::click(screen, "cmdAdd");
    person::type("Nena");
    press(Qt::Key_Return);
    press(Qt::Key_Return);
    EXPECT_EQ(read(screen, "txtCustomerBalance") + read(screen, "txtTerm"), "1,050.0030 Days");
    person::click(screen, "cmdAdd");
    ChildScreen* dialog = opened("frmAddPayment");
    ASSERT_TRUE(dialog);
    EXPECT_EQ(read(dialog, "chkDirect") + read(dialog, "lblCode"), "Accounts PayablePurchase Order No. :");
    person::type("1001");
    press(Qt::Key_Return);
    ASSERT_TRUE(opened("frmDisbursementFound"));
    press(Qt::Key_Return);
    EXPECT_EQ(read(dialog, "cboCode") + " " + read(dialog, "txtAmount"), order1_ + " 1,000.00");
    EXPECT_EQ(person::focusName(), "txtAmount");
    person::click(dialog, "cmdSave");
    EXPECT_EQ(read(dialog, "cboCode"), "") << "for the next payment";
    person::click(dialog, "cmdCancel");
    EXPECT_EQ(enabled(), "cmdAdd cmdAddCheck ");
    addCheck("a1", "600");
    EXPECT_FALSE(opened("frmAddCheck"));
    addCheck("a2", "399.99");
    EXPECT_EQ(list("lvwCheck")->row(1), QStringList({"A2", "03/03/2026", "399.99", "None", "Nena"}));
    boxes.expect("Error!",
                 "You Have Indicated this as Check Disbursement. Payment Details Total Does Not Tally with "
                 "Checks Amount Issued!");
    EXPECT_FALSE(screen->SaveRecord());
    list("lvwCheck")->setCurrentRow(1);
    person::click(screen, "cmdEditCheck");
    EXPECT_EQ(list("lvwCheck")->rowCount(), 1) << "a check under change has left the list";
    person::fill(opened("frmAddCheck"), "txtCheckAmount", "400");
    person::click(opened("frmAddCheck"), "cmdSave");
    boxes.expect("Saved!", "Record Successfully Saved!");
    EXPECT_TRUE(screen->SaveRecord());
    EXPECT_EQ(owed(order1_), money("0"));
    EXPECT_EQ(checkRows().size(), 2U);
    EXPECT_EQ(read(screen, "txtCode") + " " + enabled(),
              "03-1002-2026 cmdAdd cmdInsert cboCustomer cmdAddCheck ");
}

TEST_F(DisbursementEntry, PaysAnExpenseInCash) {
    open();
    person::fill(screen, "cboCustomer", "Rosa");
    person::click(screen, "cmdInsert");
    ChildScreen* dialog = opened("frmAddPayment");
    EXPECT_EQ(read(dialog, "chkDirect") + read(dialog, "lblDate"), "Direct ExpenseReference Date :");
    EXPECT_FALSE(person::control(dialog, "cmdSearch")->isEnabled());
    person::type(order1_);
    person::fill(dialog, "txtDate", "3/1/26");
    person::fill(dialog, "txtAmount", "1500.5");
    boxes.expect("Error!");
    person::click(dialog, "cmdSave");
    EXPECT_EQ(person::focusName(), "cboCode");
    person::fill(dialog, "cboCode", "RENT-03");
    person::click(dialog, "cmdSave");
    person::click(dialog, "cmdCancel");
    EXPECT_EQ(enabled(), "cmdInsert cmdAddCheck ");
    person::click(screen, "chkCash");
    EXPECT_EQ(enabled(), "cmdInsert ");
    boxes.expect("Saved!", "Record Successfully Saved!");
    EXPECT_TRUE(screen->SaveRecord());
    EXPECT_EQ(loadVoucher(store, "03-1001-2026").document.checks.value(0).number, "Cash");
}

TEST_F(DisbursementEntry, LosesTheLineOfADialogThatIsClosed) {
    open(savedVoucher({paid(order1_, "100")}, {check("1", "100")}));
    EXPECT_EQ(enabled(), "cmdAdd cmdAddCheck ");
    EXPECT_TRUE(person::control(screen, "txtRefDate")->isEnabled());
    list("lvwItems")->setCurrentRow(0);
    person::click(screen, "cmdEdit");
    ChildScreen* dialog = opened("frmAddPayment");
    EXPECT_EQ(read(dialog, "txtAmount"), "100.00") << "as it was paid, not what is owed";
    boxes.expect(lostFocus, "Please Click on Close Button to Exit!");
    EXPECT_FALSE(screen->SaveRecord());
    person::click(dialog, "cmdCancel");
    EXPECT_EQ(list("lvwItems")->rowCount(), 0);
    EXPECT_EQ(enabled(), "cmdAdd cmdInsert cboCustomer cmdAddCheck ") << "payee and kind are free again";
}

TEST_F(DisbursementEntry, StartsItsChecksAnewAndErasesThemForCash) {
    const QString key = savedVoucher({paid(order1_, "100")}, {check("1", "100")});
    store.run("UPDATE tblChecks SET CheckStatus = 'Cleared', Negotiated = True");
    open(key);
    const char* erase =
        "This Action Will Erase All Checks Assigned to This Voucher! Do You Want to Continue?";
    boxes.expect("Continue?", erase, BoxAnswer::No);
    person::click(screen, "chkCash");
    EXPECT_EQ(list("lvwCheck")->rowCount(), 1);
    boxes.expect("Saved!", "Record Successfully Saved!");
    EXPECT_TRUE(screen->SaveRecord());
    EXPECT_EQ(valueOf(store, "SELECT CheckStatus FROM tblChecks"), "Pending");
    open(key);
    boxes.expect("Continue?", erase, BoxAnswer::Yes);
    person::click(screen, "chkCash");
    EXPECT_EQ(list("lvwCheck")->rowCount(), 0);
    boxes.expect("Saved!", "Record Successfully Saved!");
    EXPECT_TRUE(screen->SaveRecord());
    EXPECT_EQ(valueOf(store, "SELECT CheckNo FROM tblChecks"), "Cash");
}
}  // namespace
