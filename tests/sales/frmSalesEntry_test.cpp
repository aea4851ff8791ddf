#include "sales/frmSalesEntry.h"
#include "documents/order_books.h"
#include "platform/ui/list_view.h"
#include "platform/ui/screen_registry.h"
#include "support/box_script.h"
#include "support/screen_driver.h"

#include <QCheckBox>

using person::press;
using person::read;
using ::testing::ElementsAre;

namespace {
// The screen over the small firm's books, with 10 pieces of rice and of sugar bought on the 1st.
class SalesEntry : public OrderBooks {
  protected:
    void SetUp() override {
        OrderBooks::SetUp();
        ScreenRegistry::instance().add("frmSalesEntry", [] { return new frmSalesEntry; });
        saved(purchaseOrders, {line("I1", "10", "10", "10"), line("I2", "10", "10", "4")}, "03/01/2026");
        store.run("UPDATE tblUserMaster SET PrintDRAccess = False");
    }
    void TearDown() override {
        if (screen) screen->mblnUpdated = false;
        for (ChildScreen* open : ScreenRegistry::instance().openScreens())
            if (open != dialog()) open->unload();
        person::settle();
        OrderBooks::TearDown();
    }

    void open(const QString& key = {}) {
        screen = static_cast<frmSalesEntry*>(
            ScreenRegistry::instance().open("frmSalesEntry", ScreenArguments{{}, key, {}}));
        person::look(screen);
    }
    // Takes the lock, as the journal does before it opens a document.
    void edit(const QString& key) {
        ASSERT_EQ(takeRecordLock(store, salesBook, key), LockResult::Taken);
        open(key);
    }
    ChildScreen* dialog() { return ScreenRegistry::instance().opened("frmAddItem"); }
    ListView* list() { return person::find<ListView>(screen, "lvwItems"); }
    std::vector<std::string> lines() {
        std::vector<std::string> texts;
        for (const QStringList& row : list()->rows())
            texts.push_back(OrderLine::fromTexts(row).texts().join(" | ").toStdString());
        return texts;
    }
    bool locked(const QString& key) {
        return FlagFieldSet(store, "tblSalesMaster", "RefNo", key, "RecordLock");
    }
    void closeDialog() {
        person::click(dialog(), "cmdCancel");
        EXPECT_EQ(dialog(), nullptr);
    }

    BoxScript boxes;
    QPointer<frmSalesEntry> screen;
};

TEST_F(SalesEntry, ComposesItsNumberFromThreeBoxes) {
    open();
    person::fill(screen, "txtSerialCode", "12a3");
    EXPECT_EQ(read(screen, "txtCode"), "03-123-2026");
    EXPECT_TRUE(screen->mblnUpdated);
    press(Qt::Key_Return);
    EXPECT_EQ(person::focusName(), "txtYearCode");
    person::type("25");
    press(Qt::Key_Return);
    EXPECT_EQ(person::focusName(), "txtRefDate");
    EXPECT_EQ(read(screen, "txtCode"), "03-123-25");
    boxes.expect("Not pasted!");
    person::goTo(screen, "txtSerialCode");
    person::paste(QString(23, '9'));
    EXPECT_EQ(read(screen, "txtCode"), "03-123-25") << "longer than a number may be";
    StoreSalesSerial(store, "1040");
    person::click(screen, "cmdIncrement");
    EXPECT_EQ(read(screen, "txtCode"), "03-1041-25");
}

TEST_F(SalesEntry, NeedsACustomerForALine) {
    open();
    boxes.expect("Error!", "Please Select Customer First!")
        .expect("Does not exist!",
                "Customer Does Not Exist, Please Add This To Customer Master File First...")
        .expect("Does not exist!", "Customer does not exist, please add this to Contact Master File...");
    press(Qt::Key_Insert);
    person::type("Somebody");
    person::click(screen, "cmdAdd");
    person::click(screen, "cmdEdit");
    EXPECT_EQ(dialog(), nullptr);
}

TEST_F(SalesEntry, ShowsAStoredDocumentAndLetsGoOfItsLock) {
    const QString key = saved(salesOrders, {line("I1", "2", "1", "15", "10")});
    edit(key);
    EXPECT_EQ(read(screen, "txtCode"), key);
    EXPECT_EQ(read(screen, "cboCustomer"), "Nena");
    EXPECT_EQ(read(screen, "txtBalance"), "13.50");
    EXPECT_EQ(read(screen, "txtTerm"), "30 Days");
    EXPECT_THAT(lines(), ElementsAre("I1 | Rice | 2 | 1 | PC | 15.0000 | 10.0000 | 13.5000 | 13.50"));
    for (const char* name : {"txtCode", "txtRefDate", "cboCustomer"})
        EXPECT_FALSE(person::control(screen, name)->isEnabled()) << name;
    for (const char* name : {"lblReference", "txtSerialCode", "cmdIncrement", "chkWholesale"})
        EXPECT_FALSE(person::control(screen, name)->isVisible()) << name;
    EXPECT_TRUE(locked(key));
    press(Qt::Key_Escape);
    EXPECT_FALSE(screen) << "nothing changed, nothing asked";
    EXPECT_FALSE(locked(key));
}

TEST_F(SalesEntry, StaysOpenAndLockedWhenItsClosingSaveIsRefused) {
    const QString key = saved(salesOrders, {line("I1", "2", "1", "15")});
    edit(key);
    person::fill(screen, "txtRemarks", "later");
    store.run("DELETE FROM tblContactMaster");
    boxes
        .expect("Confirm Update Record!", "Current Record has been Updated.  Save Changes then Exit?",
                BoxAnswer::Yes)
        .expect("Does not exist!");
    EXPECT_FALSE(screen->unload());
    EXPECT_TRUE(locked(key));
}

TEST_F(SalesEntry, LeavesALockThatIsNotItsOwn) {
    const QString key = saved(salesOrders, {line("I1", "2", "1", "15")});
    edit(key);
    boxes.expect("Saved!");
    EXPECT_TRUE(screen->SaveRecord());
    EXPECT_FALSE(locked(key));
    ASSERT_EQ(takeRecordLock(store, salesBook, key), LockResult::Taken);  // another workstation
    screen->unload();
    EXPECT_TRUE(locked(key));
}

TEST_F(SalesEntry, LeavesTheTagAndTheLockOfAPrintThatCameMeanwhile) {
    const QString key = saved(salesOrders, {line("I1", "2", "1", "15")});
    edit(key);
    store.run("UPDATE tblSalesMaster SET Printed = True, RecordLock = True");
    screen->RefreshRecord();
    EXPECT_TRUE(screen->unload());
    EXPECT_TRUE(locked(key));
    setRecordLock(store, salesBook, key, false);
    edit(key);
    EXPECT_TRUE(screen->unload());
    EXPECT_FALSE(locked(key)) << "printed before, and released by hand";
}

TEST_F(SalesEntry, KeepsWhatWasTypedOverAnothersChangeUntilItIsRefreshed) {
    const QString key = saved(salesOrders, {line("I1", "2", "1", "15")});
    edit(key);
    person::fill(screen, "txtRemarks", "mine");
    store.run("UPDATE tblSalesMaster SET Remarks = 'theirs', RecordLock = False");
    boxes.expect("Record Changed!").expect("Refresh?");
    EXPECT_FALSE(screen->SaveRecord());
    screen->RefreshRecord();  // Enter is No
    EXPECT_EQ(read(screen, "txtRemarks"), "mine");
    boxes.expect("Refresh?", {}, BoxAnswer::Yes).expect("Saved!");
    screen->RefreshRecord();
    EXPECT_EQ(read(screen, "txtRemarks"), "theirs");
    EXPECT_TRUE(locked(key));
    EXPECT_TRUE(screen->SaveRecord());
}

TEST_F(SalesEntry, WritesALineUnderChangeBackWhenTheDialogIsClosed) {
    edit(saved(salesOrders, {line("I1", "5", "4", "15", "10"), line("I2", "1", "1", "6")}));
    list()->setFocus();
    list()->setCurrentRow(0);
    press(Qt::Key_F2);
    ASSERT_TRUE(dialog());
    EXPECT_TRUE(screen->mblnUpdated);
    EXPECT_EQ(lines().size(), 1U) << "it has left the list";
    EXPECT_EQ(read(screen, "txtAmount"), "6.00");
    EXPECT_EQ(read(dialog(), "txtDiscount"), "10.0000");
    person::fill(dialog(), "txtServe", "5");
    closeDialog();
    EXPECT_THAT(lines(), ElementsAre("I1 | Rice | 5 | 5 | PC | 15.0000 | 10.0000 | 13.5000 | 67.50",
                                     "I2 | Sugar | 1 | 1 | PC | 6.0000 | 0.0000 | 6.0000 | 6.00"));
}

TEST_F(SalesEntry, RemovesALineAfterItsQuestion) {
    open();
    person::type("Nena");
    auto* wholesale = person::find<QCheckBox>(screen, "chkWholesale");
    wholesale->setChecked(true);
    person::click(screen, "cmdAdd");
    for (const char* keys : {"I1", "", "1", "1"}) {
        person::type(keys);
        press(Qt::Key_Return);
    }
    closeDialog();
    EXPECT_EQ(list()->text(0, 5), "13.0000") << "the wholesale price";
    EXPECT_FALSE(wholesale->isEnabled());
    list()->setCurrentRow(0);
    list()->setFocus();
    const Box asked = question("Confirm Delete", "Confirm Deletion of this Record.  Delete Record Now?");
    boxes.expect(asked);  // Enter is No
    press(Qt::Key_Delete);
    EXPECT_EQ(read(screen, "txtCount"), "1");
    screen->mblnUpdated = false;
    boxes.expect(asked, BoxAnswer::Yes);
    press(Qt::Key_Delete);
    EXPECT_TRUE(screen->mblnUpdated);
    EXPECT_EQ(read(screen, "txtCount"), "0");
    EXPECT_EQ(read(screen, "txtAmount"), "0.00");
    EXPECT_TRUE(wholesale->isEnabled());
}

TEST_F(SalesEntry, KeepsWhatWasTypedWhenItsStockIsGoneAtTheSave) {
    open();
    person::type("Nena");
    person::click(screen, "cmdAdd");
    for (const char* keys : {"I1", "", "1", "1"}) {
        person::type(keys);
        press(Qt::Key_Return);
    }
    closeDialog();
    store.run("UPDATE tblPurchaseDetails SET Delivered = 0");
    boxes.expect("Error!",
                 "Purchase This Item First! Inventory Balance For This Sales Period is Less Than your Served "
                 "Item!");
    EXPECT_FALSE(screen->SaveRecord());
    EXPECT_EQ(person::focusName(), "lvwItems");
    EXPECT_EQ(list()->rowCount(), 1);
    EXPECT_EQ(CountRecords(store, "tblSalesMaster"), 0);
}

TEST_F(SalesEntry, SortsByAClickOnAHeading) {
    edit(saved(salesOrders, {line("I1", "9", "1", "15"), line("I2", "10", "1", "6")}));
    person::clickHeader(list(), OrderLine::Ordered);
    EXPECT_EQ(list()->text(0, 0), "I1");
    EXPECT_TRUE(person::control(screen, "imgArrow")->isVisible());
    EXPECT_FALSE(person::control(screen, "lblNotice")->isVisible());
    person::clickHeader(list(), OrderLine::Ordered);
    EXPECT_EQ(list()->text(0, 0), "I2");
    EXPECT_FALSE(screen->mblnUpdated);
}

TEST_F(SalesEntry, TakesTenThousandLines) {
    open();
    person::type("Nena");
    QList<QStringList> rows(10000, line("I2", "1", "1", "6").texts());
    for (int i = 0; i < rows.size(); ++i) rows[i][0] = QString::number(i);
    list()->setRows(rows);
    person::clickHeader(list(), OrderLine::Code);
    screen->lines().addLine(line("I1", "1", "1", "15"));
    list()->setCurrentRow(5000);
    boxes.expect("Confirm Delete", "", BoxAnswer::Yes);
    person::click(screen, "cmdRemove");
    EXPECT_EQ(read(screen, "txtCount"), "10000");
    EXPECT_EQ(read(screen, "txtAmount"), "60,009.00");
}

}  // namespace
