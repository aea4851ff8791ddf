#include "masters_screen_fixture.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/data_grid.h"

#include <QCheckBox>

using person::focusName;
using person::press;

namespace {
const char* const deletion = "Confirm Deletion of this Record.  Delete Record Now?";

class ItemScreen : public ScreenTest {
  protected:
    void SetUp() override {
        ScreenTest::SetUp();
        addItem("1000000001", "STEEL NAIL 2IN");
        addItem("1000000002", "STEEL NAIL 3IN");
        addItem("1000000003", "COPPER WIRE");
        open("frmItem");
    }
};

TEST_F(ItemScreen, OpensLockedWithAnEmptyGridAndTheWholeCount) {
    EXPECT_EQ(countText(), "System Found 3 Items in your Stock Inventory");
    EXPECT_EQ(text("cboSearchBy"), "Description");
    EXPECT_EQ(enabledFields(), QStringList());
    EXPECT_FALSE(addMode() || updated());
    command("EditRecord");
    EXPECT_EQ(text("txtItemCode"), "") << "an edit on the empty grid has nothing to edit";
}

TEST_F(ItemScreen, TheWalkIgnoresTheGrid) {
    boxes.expect("Error!",
                 "Item Master File Database is not yet loaded. You cannot move item at the moment!");
    command("NextRecord");
    search("Description", "copper");
    command("FirstRecord");
    EXPECT_EQ((QStringList{text("txtItemCode"), text("txtSupplierCode"), text("txtCostPrice"),
                           text("txtReorder"), text("txtDateAquired")}),
              (QStringList{"1000000001", "Mabuhay Trading", "10.0000", "5.00", "01/15/2026"}));
    command("NextRecord");
    EXPECT_EQ(text("txtItemCode"), "1000000002");
    command("LastRecord");
    boxes.expect("EOF", "End of File Encountered...");
    command("NextRecord");
    EXPECT_EQ(text("txtItemCode"), "1000000003");
    command("FirstRecord");
    boxes.expect("BOF", "Beginning of File Encountered...");
    command("PrevRecord");
    command("ClearRecord");
    EXPECT_EQ((QStringList{text("txtItemCode"), text("txtSupplierCode"), text("txtCostPrice"),
                           text("txtReorder"), text("txtDateAquired")}),
              (QStringList{"", "", "0.0000", "5.00", "01/15/2026"}));
}

TEST_F(ItemScreen, ANewItemIsTypedAndSavedWithKeys) {
    command("NewRecord");
    EXPECT_EQ(focusName(), "txtDescription");
    EXPECT_EQ((QStringList{text("txtItemCode"), text("txtDateAquired"), text("txtReorder")}),
              (QStringList{"1000000004", "03/02/2026", "0"}));
    type("garden hose\r");
    EXPECT_EQ(text("txtDescription"), "GARDEN HOSE");
    type("Mabuhay Trading\t");
    EXPECT_EQ(focusName(), "txtUnit");
    type("pc\r");
    EXPECT_EQ(text("txtUnit"), "PC");
    type("b'2\r");
    EXPECT_EQ(text("txtLocator"), "B2") << "the apostrophe is no key of this field";
    type("\r1250.5\r1500\r1400\r");
    EXPECT_EQ(text("txtCostPrice"), "1,250.5000");
    type("2-1-26\r12\r");
    EXPECT_EQ(text("txtDateAquired"), "02/01/2026");
    type("99");
    command("SaveRecord");
    EXPECT_FALSE(addMode() || updated());
    EXPECT_EQ(enabledFields(), QStringList());
    EXPECT_EQ(text("txtInventoryBalance"), "0.00") << "what was stored, not what was typed";
    EXPECT_EQ(countText(), "System Found 4 Items in your Stock Inventory");
    EXPECT_EQ(count("tblItemMaster WHERE Description = 'GARDEN HOSE' AND SellingPrice = 15000000"), 1);
}

TEST_F(ItemScreen, ASaveByKeyFinishesTheFieldFirst) {
    command("NewRecord");
    type("hose");
    set("txtSupplierCode", "mabuhay trading");
    person::goTo(screen, "txtUnit");
    type("pc");
    command("SaveRecord");
    EXPECT_EQ(count("tblItemMaster WHERE Unit = 'PC'"), 4);
}

TEST_F(ItemScreen, ARefusedSaveKeepsEverything) {
    command("NewRecord");
    type("hose");
    boxes.expect("Error!", "Please Enter Supplier Code!");
    command("SaveRecord");
    EXPECT_EQ(focusName(), "txtSupplierCode");
    EXPECT_TRUE(addMode() && updated());
    EXPECT_EQ(text("txtDescription"), "HOSE");
    // While the flag is raised the grid shows nothing over it; a list clears nothing either.
    person::click(screen, "cmdAll");
    person::goTo(screen, "dbgMyGrid");
    press(Qt::Key_Return);
    EXPECT_EQ(text("txtDescription"), "HOSE");
    search("Unit", "");
    person::goTo(screen, "dbgMyGrid");
    press(Qt::Key_Return);
    EXPECT_EQ(text("txtDescription"), "STEEL NAIL 2IN");
}

TEST_F(ItemScreen, AnEditTakesTheRowOfTheGrid) {
    search("Description", "nail", "3in");
    command("FirstRecord");
    ASSERT_EQ(text("txtItemCode"), "1000000001");
    command("EditRecord");
    EXPECT_EQ(text("txtItemCode"), "1000000002");
    EXPECT_TRUE(updated() && !addMode());
    const QStringList open = enabledFields();
    EXPECT_TRUE(open.contains("txtInventoryBalance"));
    EXPECT_FALSE(open.contains("txtItemCode") || open.contains("txtLastUpdate"));
    EXPECT_EQ(focusName(), "txtDescription");
}

TEST_F(ItemScreen, ADuplicateKeepsTheFieldsUnderANewCode) {
    command("FirstRecord");
    person::click(screen, "cmdNewDuplicate");
    EXPECT_EQ(text("txtItemCode") + text("txtDescription") + text("txtUpdatedBy"),
              "1000000004STEEL NAIL 2IN");
    boxes.expect("Error!", "Item Description Already Exist! System Cannot Allow Same Item Description!");
    command("SaveRecord");
    EXPECT_EQ(focusName(), "txtDescription");
    type("STEEL NAIL 4IN");
    command("SaveRecord");
    EXPECT_EQ(count("tblItemMaster"), 4);
}

TEST_F(ItemScreen, SearchesNarrowTheGrid) {
    const struct {
        const char *category, *first, *second, *count, *fault;
    } rows[] = {
        {"Description", "NAIL", "3in", "1 Records in the Item Master File Database...", ""},
        {"Description", "x' OR '1'='1", "", "No Items in the Database...", ""},
        {"Description", "", "", "No Items in the Database...", "Please Enter Search Value to Search!"},
        {"Cost Price", "10", "", "3 Records in the Item Master File Database...", ""},
        {"Cost Price", "1.2.3", "", "3 Records in the Item Master File Database...",
         "\"1.2.3\" is not a number."}};
    for (const auto& row : rows) {
        if (*row.fault) boxes.expect("", row.fault);
        search(row.category, row.first, row.second);
        EXPECT_EQ(countText(), QString("There are ") + row.count) << row.first;
    }
    EXPECT_FALSE(person::control(screen, "txtSecondSearch")->isVisible()) << "of a price";
    person::goTo(screen, "txtSearch");
    type("a1'2.5");
    EXPECT_EQ(text("txtSearch"), "12.5") << "the keys of a price";
}

TEST_F(ItemScreen, HeadersSortByTheSystemsMappingAndDropTheSearch) {
    // Descriptions, prices, locators and balances each in another order.
    store().run(
        "UPDATE tblItemMaster SET Locator = SUBSTR('CBA', CAST(ItemCode AS INTEGER) % 10, 1),"
        " Balance = 10000 * CAST(SUBSTR('213', CAST(ItemCode AS INTEGER) % 10, 1) AS INTEGER),"
        " WholesalePrice = CAST(SUBSTR('312', CAST(ItemCode AS INTEGER) % 10, 1) AS INTEGER)");
    const std::pair<int, const char*> rows[] = {
        {1, "1000000003"}, {4, "1000000003"}, {5, "1000000002"}, {6, "1000000001"}};
    for (const auto& [column, first] : rows) {
        search("Description", "3in");
        person::clickHeader(grid(), column);
        EXPECT_EQ(grid()->recordCount(), 3) << column;
        EXPECT_EQ(grid()->currentText("ItemCode"), first) << column;
    }
}

TEST_F(ItemScreen, DeletionAsksAndTakesTheRowOfTheGrid) {
    person::click(screen, "cmdAll");
    command("LastRecord");
    boxes.expect("Confirm Delete", deletion, BoxAnswer::No);
    command("DeleteRecord");
    EXPECT_EQ(count("tblItemMaster"), 3);
    // The last time there is nothing left to delete, and nothing is said.
    for (const int left : {2, 1, 0, 0}) {
        boxes.expect("Confirm Delete", deletion, BoxAnswer::Yes);
        command("DeleteRecord");
        EXPECT_EQ(count("tblItemMaster"), left);
        EXPECT_EQ(count("tblItemMaster WHERE ItemCode = '1000000001'"), 0);
    }
    EXPECT_EQ(text("txtItemCode"), "") << "the last one leaves a cleared form";
}

TEST_F(ItemScreen, AnUnknownUnitIsOfferedForAddingButNotOnClosing) {
    command("NewRecord");
    const std::pair<BoxAnswer, const char*> cases[] = {{BoxAnswer::No, ""}, {BoxAnswer::Yes, "SACK"}};
    for (const auto& [answer, unit] : cases) {
        person::goTo(screen, "txtUnit");
        boxes.expect("Add Unit?", "System does not Recognize Unit! Do you want to add Unit Code to Database?",
                     answer);
        type("sack\r");
        EXPECT_EQ(text("txtUnit"), unit);
        EXPECT_EQ(focusName(), "txtLocator");
        EXPECT_EQ(count("tblUnitMaster WHERE UnitCode = 'SACK'"), *unit ? 1 : 0);
    }
    person::fill(screen, "txtUnit", "drum");
    press(Qt::Key_Escape);
    EXPECT_FALSE(screen);
    EXPECT_EQ(count("tblUnitMaster WHERE UnitCode = 'DRUM'"), 0);
}

TEST_F(ItemScreen, TheSupplierComesFromTheListOrThePicker) {
    addContact("Mabini Hardware", true, true);
    addContact("Mabolo Store", true, false);
    command("NewRecord");
    person::fill(screen, "txtSupplierCode", "mab");
    press(Qt::Key_Return);
    ASSERT_TRUE(popup("frmContactFound"));
    EXPECT_EQ(person::find<DataGrid>(popup("frmContactFound"), "dbgSearch")->recordCount(), 2);
    press(Qt::Key_Return);
    EXPECT_EQ(text("txtSupplierCode"), "Mabini Hardware");
    EXPECT_EQ(focusName(), "txtUnit");
    auto* supplier = person::find<ComboBox>(screen, "txtSupplierCode");
    supplier->setText("mab");
    supplier->showPopup();
    supplier->hidePopup();
    EXPECT_EQ(supplier->itemText(0) + ',' + supplier->itemText(1), "Mabini Hardware,Mabuhay Trading");
    EXPECT_EQ(supplier->count(), 2);
    EXPECT_EQ(supplier->text(), "mab") << "what was typed stays";
}

TEST_F(ItemScreen, WalksThroughTenThousandItems) {
    std::vector<QVariantList> rows;
    for (int i = 4; i <= 10'000; ++i)
        rows.push_back({QString::number(1'000'000'000 + i), QString("PIPE %1 FEET").arg(i)});
    store().runMany("INSERT INTO tblItemMaster (ItemCode, Description, CostPrice) VALUES (?, ?, 10000)",
                    rows);
    person::click(screen, "cmdAll");
    person::clickHeader(grid(), 1);
    search("Description", "pipe", "999");
    command("LastRecord");
    for (int i = 0; i < 100; ++i) command("PrevRecord");
    command("RefreshRecord");
    EXPECT_EQ(countText(), "There are 10,000 Records in the Item Master File Database...");
}

class ContactScreen : public ScreenTest {
  protected:
    void SetUp() override {
        ScreenTest::SetUp();
        addContact("Ana Reyes", true, false);
        addContact("Zamora Supply", true, true);
        open("frmContacts");
    }
};

TEST_F(ContactScreen, EnterInTheRemarksSaves) {
    command("NewRecord");
    EXPECT_EQ(text("txtTerm") + '|' + text("txtDiscount") + '|' + text("txtCreditLimit"), "0|0|0.00");
    type("Ben' Cruz\r1' Road\r555'1\rb'@c\r15\r2500\r5");
    EXPECT_EQ(text("txtCreditLimit"), "2,500.00");
    person::find<QCheckBox>(screen, "chkCustomer")->setChecked(true);
    person::goTo(screen, "txtRemarks");
    type("pay's late\r");
    EXPECT_EQ(count("tblContactMaster WHERE Terms = 150000 AND Discount = 50000 AND ContactName || Address "
                    "|| TelNo || eMail || Remarks = 'Ben Cruz1 Road5551b@cpays late'"),
              1)
        << "the apostrophe is no key of these fields";
    EXPECT_EQ(countText(), "System Found 4 Items in your Contact Information File");
    EXPECT_EQ(grid()->recordCount(), 4) << "a save lists all contacts";
    EXPECT_EQ(enabledFields(), QStringList());
}

TEST_F(ContactScreen, AnEditClearsItsOwnFlagsAndFollowsTheGrid) {
    person::click(screen, "cmdAll");
    command("EditRecord");
    EXPECT_FALSE(addMode() || updated());
    EXPECT_EQ(text("txtName"), "Ana Reyes");
    // The grid shows another contact while the fields are open, and the save writes to that one.
    person::goTo(screen, "dbgMyGrid");
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(text("txtName"), "Mabuhay Trading");
    EXPECT_TRUE(enabledFields().contains("txtName"));
    set("txtTelNo", "555-0101");
    command("SaveRecord");
    EXPECT_EQ(valueOf(store(), "SELECT MAX(ContactName) || COUNT(*) FROM tblContactMaster WHERE TelNo <> ''"),
              "Mabuhay Trading1");
}

TEST_F(ContactScreen, ASaveChangesOnlyWhatAPersonDid) {
    store().run("UPDATE tblContactMaster SET Discount = 333333, Address = ' 1 Road'");
    person::click(screen, "cmdAll");
    command("EditRecord");
    set("txtTelNo", "555-0101");
    command("SaveRecord");
    EXPECT_EQ(count("tblContactMaster WHERE TelNo = '555-0101' AND Discount = 333333 "
                    "AND Address = ' 1 Road'"),
              1);
}

TEST_F(ContactScreen, AChangeOfSomeoneElseIsShownByARefreshBeforeItCanBeChanged) {
    person::click(screen, "cmdAll");
    grid()->selectKey("ContactName", "Mabuhay Trading");
    command("EditRecord");
    set("txtTelNo", "555-0101");
    store().run("UPDATE tblContactMaster SET CreditLimit = 770000, UpdatedBy = 'CLERK'");
    boxes.expect("Record Changed!");
    command("SaveRecord");
    EXPECT_EQ(text("txtTelNo"), "555-0101");
    EXPECT_TRUE(enabledFields().contains("txtTelNo"));
    command("RefreshRecord");
    EXPECT_EQ(text("txtName") + text("txtCreditLimit") + text("txtTelNo"), "Mabuhay Trading77.00");
    command("EditRecord");
    set("txtTelNo", "555-0101");
    command("SaveRecord");
    EXPECT_EQ(count("tblContactMaster WHERE TelNo = '555-0101' AND CreditLimit = 770000"), 1);
}

TEST_F(ContactScreen, AClearedFormEndsTheEdit) {
    for (const char* way : {"cmdSearch", "RefreshRecord", "ClearRecord"}) {
        person::click(screen, "cmdAll");
        command("EditRecord");
        ASSERT_TRUE(enabledFields().contains("txtName"));
        way == QString("cmdSearch") ? person::click(screen, way) : command(way);
        EXPECT_EQ(enabledFields(), QStringList()) << way;
        EXPECT_EQ(text("txtName"), way == QString("RefreshRecord") ? "Ana Reyes" : "") << way;
    }
    set("txtName", "Somebody Else");
    person::find<QCheckBox>(screen, "chkCustomer")->setChecked(true);
    command("SaveRecord");
    EXPECT_EQ(count("tblContactMaster WHERE ContactName = 'Somebody Else'"), 0);
}

TEST_F(ContactScreen, TheTypeIsPickedFromItsOwnList) {
    set("cboSearchBy", "Type");
    EXPECT_FALSE(person::control(screen, "txtSearch")->isVisible());
    EXPECT_EQ(focusName(), "cboType");
    for (const char* kind : {"Supplier", "Customer"}) {
        set("cboType", kind);
        emit person::find<ComboBox>(screen, "cboType")->picked();
        EXPECT_EQ(grid()->recordCount(), 2);
    }
    EXPECT_EQ(grid()->currentText("ContactName"), "Ana Reyes");
    set("cboSearchBy", "Address");
    EXPECT_TRUE(person::control(screen, "txtSearch")->isVisible());
    EXPECT_FALSE(person::control(screen, "cboType")->isVisible());
}

TEST_F(ContactScreen, AMoveFromNoRecordIsTheStoresError) {
    boxes.expect("Error...", "There is no current record.");
    command("PrevRecord");
}
}  // namespace
