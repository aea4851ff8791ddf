#include "masters/frmContacts.h"
#include "masters/frmItem.h"
#include "masters_screen_fixture.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/data_grid.h"
#include "platform/ui/text_box.h"

#include <QGroupBox>

namespace {
class ItemScreen : public ScreenTest {
  protected:
    void SetUp() override {
        ScreenTest::SetUp();
        addItem("1000000001", "STEEL NAIL 2IN");
        addItem("1000000002", "STEEL NAIL 3IN");
        addItem("1000000003", "COPPER WIRE");
        screen = open("frmItem");
    }
    void search(const QString& category, const QString& first, const QString& second = {}) {
        combo("cboSearchBy")->setText(category);
        box("txtSearch")->setText(first);
        if (!second.isNull()) box("txtSecondSearch")->setText(second);
        press("cmdSearch");
    }
};

TEST_F(ItemScreen, OpensLockedWithAnEmptyGridAndTheWholeCount) {
    EXPECT_EQ(countText(), "System Found 3 Items in your Stock Inventory");
    EXPECT_EQ(combo("cboSearchBy")->text(), "Description");
    EXPECT_EQ(enabledFields(), QStringList());
    EXPECT_FALSE(addMode() || updated());
    command("EditRecord");
    EXPECT_EQ(text("txtItemCode"), "") << "an edit on the empty grid has nothing to edit";
    EXPECT_TRUE(box("txtDescription")->isEnabled());
}

TEST_F(ItemScreen, TheWalkIgnoresTheGrid) {
    command("NextRecord");
    EXPECT_EQ(takeBoxes(), QStringList{"Error!|Item Master File Database is not yet loaded. You cannot move "
                                       "item at the moment!"});
    search("Description", "copper");
    command("FirstRecord");
    EXPECT_EQ(text("txtItemCode"), "1000000001");
    EXPECT_EQ(text("txtSupplierCode"), "Mabuhay Trading");
    EXPECT_EQ(text("txtCostPrice"), "10.0000");
    EXPECT_EQ(text("txtReorder"), "5.00");
    EXPECT_EQ(text("txtDateAquired"), "01/15/2026");
    command("NextRecord");
    EXPECT_EQ(text("txtItemCode"), "1000000002");
    command("LastRecord");
    command("NextRecord");
    EXPECT_EQ(takeBoxes(), QStringList{"EOF|End of File Encountered..."});
    EXPECT_EQ(text("txtItemCode"), "1000000003");
    command("FirstRecord");
    command("PrevRecord");
    EXPECT_EQ(takeBoxes(), QStringList{"BOF|Beginning of File Encountered..."});
}

TEST_F(ItemScreen, ANewItemIsTypedAndSavedWithKeys) {
    command("NewRecord");
    EXPECT_TRUE(addMode());
    EXPECT_EQ(focused(), "txtDescription");
    EXPECT_EQ(text("txtItemCode"), "1000000004");
    EXPECT_EQ(text("txtDateAquired"), "03/02/2026");
    EXPECT_EQ(text("txtReorder"), "0");
    type("garden hose\r");
    EXPECT_EQ(text("txtDescription"), "GARDEN HOSE");
    EXPECT_EQ(focused(), "txtSupplierCode");
    type("Mabuhay Trading\t");
    EXPECT_EQ(focused(), "txtUnit");
    type("pc\r");
    EXPECT_EQ(text("txtUnit"), "PC");
    type("b'2\r");
    EXPECT_EQ(text("txtLocator"), "B2") << "the apostrophe is no key of this field";
    type("\r");
    type("1250.5\r1500\r1400\r");
    EXPECT_EQ(text("txtCostPrice"), "1,250.5000");
    type("2-1-26\r12\r");
    EXPECT_EQ(text("txtDateAquired"), "02/01/2026");
    type("99");
    command("SaveRecord");
    EXPECT_EQ(takeBoxes(), QStringList());
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
    box("txtUnit")->setFocus();
    type("pc");
    command("SaveRecord");
    EXPECT_EQ(takeBoxes(), QStringList());
    EXPECT_EQ(count("tblItemMaster WHERE Unit = 'PC'"), 4);
}

TEST_F(ItemScreen, ARefusedSaveKeepsEverything) {
    command("NewRecord");
    type("hose");
    command("SaveRecord");
    EXPECT_EQ(takeBoxes(), QStringList{"Error!|Please Enter Supplier Code!"});
    EXPECT_EQ(focused(), "txtSupplierCode");
    EXPECT_TRUE(addMode() && updated());
    EXPECT_EQ(text("txtDescription"), "HOSE");
    // While the flag is raised the grid shows nothing over it; a list clears nothing either.
    press("cmdAll");
    enterInGrid();
    EXPECT_EQ(text("txtDescription"), "HOSE");
    search("Unit", "");
    enterInGrid();
    EXPECT_EQ(text("txtDescription"), "STEEL NAIL 2IN");
}

TEST_F(ItemScreen, AnEditTakesTheRowOfTheGrid) {
    search("Description", "nail", "3in");
    command("FirstRecord");
    ASSERT_EQ(text("txtItemCode"), "1000000001");
    command("EditRecord");
    EXPECT_EQ(text("txtItemCode"), "1000000002");
    EXPECT_TRUE(updated() && !addMode());
    EXPECT_FALSE(box("txtItemCode")->isEnabled());
    EXPECT_TRUE(box("txtInventoryBalance")->isEnabled());
    EXPECT_FALSE(box("txtLastUpdate")->isEnabled());
    EXPECT_EQ(focused(), "txtDescription");
}

TEST_F(ItemScreen, ADuplicateKeepsTheFieldsUnderANewCode) {
    command("FirstRecord");
    press("cmdNewDuplicate");
    EXPECT_EQ(text("txtItemCode"), "1000000004");
    EXPECT_EQ(text("txtDescription"), "STEEL NAIL 2IN");
    EXPECT_EQ(text("txtUpdatedBy"), "");
    command("SaveRecord");
    EXPECT_EQ(takeBoxes(), QStringList{"Error!|Item Description Already Exist! System Cannot Allow Same Item "
                                       "Description!"});
    EXPECT_EQ(focused(), "txtDescription");
    type("STEEL NAIL 4IN");
    command("SaveRecord");
    EXPECT_EQ(count("tblItemMaster"), 4);
}

TEST_F(ItemScreen, AClearLeavesTheDateAndTheLevel) {
    command("FirstRecord");
    command("ClearRecord");
    EXPECT_EQ(text("txtItemCode") + text("txtDescription") + text("txtSupplierCode"), "");
    EXPECT_EQ(text("txtCostPrice"), "0.0000");
    EXPECT_EQ(text("txtInventoryBalance"), "0");
    EXPECT_EQ(text("txtDateAquired"), "01/15/2026");
    EXPECT_EQ(text("txtReorder"), "5.00");
}

TEST_F(ItemScreen, SearchesNarrowTheGrid) {
    struct Row {
        const char *category, *first, *second, *count, *fault;
    };
    const Row rows[] = {
        {"Description", "nail", "", "There are 2 Records in the Item Master File Database...", ""},
        {"Description", "NAIL", "3in", "There are 1 Records in the Item Master File Database...", ""},
        {"Description", "gold", "", "There are No Items in the Database...", ""},
        {"Description", "", "", "There are No Items in the Database...",
         "Error!|Please Enter Search Value to Search!"},
        {"Description", "x' OR '1'='1", "", "There are No Items in the Database...", ""},
        {"Unit", "", "", "There are 3 Records in the Item Master File Database...", ""},
        {"Cost Price", "10", "", "There are 3 Records in the Item Master File Database...", ""},
        {"Cost Price", "1.2.3", "", "There are 3 Records in the Item Master File Database...",
         "Error...|\"1.2.3\" is not a number."},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.first);
        search(row.category, row.first, row.second);
        EXPECT_EQ(countText(), row.count);
        EXPECT_EQ(takeBoxes(), *row.fault ? QStringList{row.fault} : QStringList());
    }
}

TEST_F(ItemScreen, TheCategoryDecidesTheBoxesAndTheirKeys) {
    EXPECT_TRUE(box("txtSecondSearch")->isVisible());
    combo("cboSearchBy")->setText("Selling Price");
    EXPECT_FALSE(box("txtSecondSearch")->isVisible());
    box("txtSearch")->setFocus();
    type("a1'2.5");
    EXPECT_EQ(text("txtSearch"), "12.5");
}

TEST_F(ItemScreen, HeadersSortByTheSystemsMappingAndDropTheSearch) {
    // Codes, descriptions, prices, locators and balances each in another order.
    store().run("UPDATE tblItemMaster SET Locator = 'C', Balance = 20000 WHERE ItemCode = '1000000001'");
    store().run(
        "UPDATE tblItemMaster SET Locator = 'B', Balance = 10000, WholesalePrice = 1 "
        "WHERE ItemCode = '1000000002'");
    store().run(
        "UPDATE tblItemMaster SET Locator = 'A', Balance = 30000, WholesalePrice = 2 "
        "WHERE ItemCode = '1000000003'");
    const std::pair<int, const char*> rows[] = {
        {1, "1000000003"}, {4, "1000000003"}, {5, "1000000002"}, {6, "1000000001"}};
    for (const auto& [column, first] : rows) {
        search("Description", "3in");
        clickHeader(column);
        EXPECT_EQ(grid()->recordCount(), 3) << column;
        EXPECT_EQ(grid()->currentText("ItemCode"), first) << column;
    }
}

TEST_F(ItemScreen, DeletionAsksAndTakesTheRowOfTheGrid) {
    press("cmdAll");
    command("LastRecord");
    answer(BoxAnswer::No);
    command("DeleteRecord");
    EXPECT_EQ(takeBoxes(),
              QStringList{"Confirm Delete|Confirm Deletion of this Record.  Delete Record Now?"});
    EXPECT_EQ(count("tblItemMaster"), 3);
    for (int left = 2; left >= 0; --left) {
        answer(BoxAnswer::Yes);
        command("DeleteRecord");
        EXPECT_EQ(takeBoxes().size(), 1);
        EXPECT_EQ(count("tblItemMaster"), left);
    }
    EXPECT_EQ(count("tblItemMaster WHERE ItemCode = '1000000001'"), 0);
    EXPECT_EQ(text("txtItemCode"), "") << "the last one leaves a cleared form";
    answer(BoxAnswer::Yes);
    command("DeleteRecord");
    EXPECT_EQ(takeBoxes().size(), 1) << "nothing left to delete, and nothing said";
}

TEST_F(ItemScreen, AnUnknownUnitIsOfferedForAdding) {
    command("NewRecord");
    box("txtUnit")->setFocus();
    answer(BoxAnswer::No);
    type("sack\r");
    EXPECT_EQ(takeBoxes(), QStringList{"Add Unit?|System does not Recognize Unit! Do you want to add Unit "
                                       "Code to Database?"});
    EXPECT_EQ(text("txtUnit"), "");
    EXPECT_EQ(focused(), "txtLocator");
    box("txtUnit")->setFocus();
    answer(BoxAnswer::Yes);
    type("sack\r");
    EXPECT_EQ(takeBoxes().size(), 1);
    EXPECT_EQ(text("txtUnit"), "SACK");
    EXPECT_EQ(count("tblUnitMaster WHERE UnitCode = 'SACK'"), 1);
}

TEST_F(ItemScreen, ClosingAsksNothingAboutAnUnknownUnit) {
    command("NewRecord");
    box("txtUnit")->setFocus();
    type("sack");
    keyTo(box("txtUnit"), Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(screen);
    EXPECT_EQ(count("tblUnitMaster WHERE UnitCode = 'SACK'"), 0);
}

TEST_F(ItemScreen, TheSuppliersDropDownUnderTheTypedText) {
    for (const char* name : {"Zamora Supply", "Bohol Cement"}) addContact(name, false, true);
    addContact("Ana Reyes", true, false);
    command("NewRecord");
    ComboBox* supplier = combo("txtSupplierCode");
    supplier->setText("boh");
    supplier->showPopup();
    supplier->hidePopup();
    QStringList names;
    for (int entry = 0; entry < supplier->count(); ++entry) names << supplier->itemText(entry);
    EXPECT_EQ(names, (QStringList{"Bohol Cement", "Mabuhay Trading", "Zamora Supply"}));
    EXPECT_EQ(supplier->text(), "boh");
}

TEST_F(ItemScreen, EnterOnTheSupplierOpensThePicker) {
    addContact("Mabini Hardware", true, true);
    addContact("Mabolo Store", true, false);
    command("NewRecord");
    combo("txtSupplierCode")->box()->setFocus();
    type("mab\r");
    ChildScreen* picker = popup("frmContactFound");
    ASSERT_TRUE(picker);
    EXPECT_EQ(picker->findChild<DataGrid*>("dbgSearch")->recordCount(), 2);
    keyTo(picker, Qt::Key_Return);
    EXPECT_EQ(text("txtSupplierCode"), "Mabini Hardware");
    EXPECT_FALSE(popup("frmContactFound"));
    EXPECT_EQ(focused(), "txtUnit");
}

class ContactScreen : public ScreenTest {
  protected:
    void SetUp() override {
        ScreenTest::SetUp();
        addContact("Ana Reyes", true, false);
        addContact("Zamora Supply", true, true);
        screen = open("frmContacts");
    }
};

TEST_F(ContactScreen, EnterInTheRemarksSaves) {
    command("NewRecord");
    EXPECT_EQ(text("txtTerm") + '|' + text("txtDiscount") + '|' + text("txtCreditLimit"), "0|0|0.00");
    type("Ben Cruz\r\r\r\r15\r2500\r5");
    EXPECT_EQ(text("txtCreditLimit"), "2,500.00");
    flag("chkCustomer")->setChecked(true);
    box("txtRemarks")->setFocus();
    type("pays late\r");
    EXPECT_EQ(takeBoxes(), QStringList());
    EXPECT_EQ(
        count("tblContactMaster WHERE ContactName = 'Ben Cruz' AND Terms = 150000 AND Discount = 50000"), 1);
    EXPECT_EQ(countText(), "System Found 4 Items in your Contact Information File");
    EXPECT_EQ(grid()->recordCount(), 4) << "a save lists all contacts";
    EXPECT_EQ(enabledFields(), QStringList());
}

TEST_F(ContactScreen, AnEditClearsItsOwnFlagsAndFollowsTheGrid) {
    press("cmdAll");
    command("EditRecord");
    EXPECT_FALSE(addMode() || updated());
    EXPECT_EQ(text("txtName"), "Ana Reyes");
    EXPECT_TRUE(box("txtName")->isEnabled());
    // The grid shows another contact while the fields are open, and the save writes to that one.
    keyTo(grid(), Qt::Key_Down);
    enterInGrid();
    EXPECT_EQ(text("txtName"), "Mabuhay Trading");
    EXPECT_TRUE(box("txtName")->isEnabled());
    set("txtTelNo", "555-0101");
    command("SaveRecord");
    EXPECT_EQ(takeBoxes(), QStringList());
    EXPECT_EQ(count("tblContactMaster WHERE ContactName = 'Mabuhay Trading' AND TelNo = '555-0101'"), 1);
    EXPECT_EQ(count("tblContactMaster WHERE TelNo = '555-0101'"), 1);
}

TEST_F(ContactScreen, TheTypeIsPickedFromItsOwnList) {
    combo("cboSearchBy")->setText("Type");
    EXPECT_FALSE(box("txtSearch")->isVisible());
    ASSERT_TRUE(combo("cboType")->isVisible());
    EXPECT_EQ(focused(), "cboType");
    pick("cboType", "Supplier");
    EXPECT_EQ(grid()->recordCount(), 2);
    pick("cboType", "Customer");
    EXPECT_EQ(grid()->recordCount(), 2);
    EXPECT_EQ(grid()->currentText("ContactName"), "Ana Reyes");
    combo("cboSearchBy")->setText("Address");
    EXPECT_TRUE(box("txtSearch")->isVisible());
    EXPECT_FALSE(combo("cboType")->isVisible());
}

TEST_F(ContactScreen, AMoveFromNoRecordIsTheStoresError) {
    command("PrevRecord");
    EXPECT_EQ(takeBoxes(), QStringList{"Error...|There is no current record."});
}
}  // namespace
