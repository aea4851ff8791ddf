#include "masters/item_document.h"
#include "masters_fixture.h"

namespace {
class ItemDocument : public MastersTest {
  protected:
    Outcome save(const ItemEntry& entry) { return SaveItem(store(), entry, true, {}); }
    Outcome edit(const ItemEntry& entry) { return SaveItem(store(), entry, false, entry.ItemCode); }
};

TEST_F(ItemDocument, ChecksRunInTheSystemsOrder) {
    addItem("1000000001", "STEEL NAIL 2IN");
    // Everything is wrong at first; each line sees the first fault left, then mends it.
    ItemEntry entry{.Description = "Steel Nail 2in",
                    .CostPrice = "12",
                    .SellingPrice = "x",
                    .WholesalePrice = "20",
                    .DateAquired = "02/31/2026",
                    .OrderLevel = "y",
                    .InventoryBalance = "z"};
    struct Step {
        const char* text;
        const char* focus;
        std::function<void()> mend;
    };
    const Step steps[] = {
        {"Please Enter Item Code!", "txtItemCode", [&] { entry.ItemCode = "1000000001"; }},
        {"Please Enter Supplier Code!", "txtSupplierCode", [&] { entry.SupplierName = "NOBODY"; }},
        {"Please Enter Numeric Value for Prices!", "txtSellingPrice", [&] { entry.SellingPrice = "10"; }},
        {"Please Enter Numeric Value for Inventory Balance!", "txtInventoryBalance",
         [&] { entry.InventoryBalance = "0"; }},
        {"Please Enter Numeric Value for Re-Order Level!", "txtReorder", [&] { entry.OrderLevel = "5"; }},
        {"Please Enter Unit!", "txtUnit", [&] { entry.Unit = "GROSS"; }},
        {"Supplier Does Not Exist!", "txtSupplierCode", [&] { entry.SupplierName = "Mabuhay Trading "; }},
        {"Cost Price is Greater Than Selling Price!", "txtCostPrice", [&] { entry.SellingPrice = "15"; }},
        {"Wholesale Price is Greater Than Selling Price!", "txtWholesale",
         [&] { entry.WholesalePrice = "11"; }},
        {"Cost Price is Greater Than Wholesale Price!", "txtCostPrice", [&] { entry.WholesalePrice = "13"; }},
        {"Invalid Aquisition Date!", "txtDateAquired", [&] { entry.DateAquired = "2/28/26"; }},
        {"Unit Code Does Not Exist!", "txtUnit", [&] { entry.Unit = "PC"; }},
        {"Duplicate Item Code! Please Assign Another Number!", "txtItemCode",
         [&] { entry.ItemCode = "1000000002"; }},
        {"Item Description Already Exist! System Cannot Allow Same Item Description!", "txtDescription",
         [&] { entry.Description = "STEEL NAIL 3IN"; }},
    };
    for (const Step& step : steps) {
        EXPECT_EQ(faultOf(save(entry)), (FaultText{step.text, step.focus}));
        step.mend();
    }
    EXPECT_TRUE(isDone(save(entry)));
}

// The store's own comparison knows the case of plain letters only; what is compared is what would be stored.
TEST_F(ItemDocument, ADescriptionIsTakenInEitherCaseOfItsLetters) {
    addItem("1000000001", QString::fromUtf8("PIÑA JUICE"));
    ItemEntry entry = goodItem();
    entry.ItemCode = "1000000002";
    entry.Description = QString::fromUtf8(" piña juice");
    EXPECT_EQ(faultOf(save(entry)).focus, "txtDescription");
}

TEST_F(ItemDocument, PricesStandInOrder) {
    struct Row {
        const char *cost, *wholesale, *selling, *fault;
    };
    const Row rows[] = {
        {"10", "10", "10", ""},
        {"10.00", "10.0001", "1,000.50", ""},
        {"0", "0", "0", ""},
        {"10.0001", "10", "10", "Cost Price is Greater Than Selling Price!"},
        {"10", "0", "12", "Cost Price is Greater Than Wholesale Price!"},
        {"10", "12.0001", "12", "Wholesale Price is Greater Than Selling Price!"},
        {"10", "abc", "12", "\"abc\" is not a number."},
        {"10", "", "12", "\"\" is not a number."},
        // The cost is held against the selling price before the wholesale price is read.
        {"13", "abc", "12", "Cost Price is Greater Than Selling Price!"},
        {"1e5", "1", "12", "Please Enter Numeric Value for Prices!"},
    };
    for (const Row& row : rows) {
        ItemEntry entry = goodItem();
        entry.ItemCode = QString("P%1").arg(&row - rows);
        entry.Description = entry.ItemCode;
        entry.CostPrice = row.cost;
        entry.WholesalePrice = row.wholesale;
        entry.SellingPrice = row.selling;
        EXPECT_EQ(faultOf(save(entry)).text, row.fault) << row.cost << ' ' << row.wholesale;
    }
}

TEST_F(ItemDocument, StoresWhatWasTypedAsTheSystemShapesIt) {
    ItemEntry entry = goodItem();
    entry.Description = "  hollow block 4\"  ";
    entry.Locator = " a-1";
    entry.Remarks = "it's pasted ";
    entry.CostPrice = "1,234.56785";
    entry.SellingPrice = entry.WholesalePrice = "1,300";
    entry.InventoryBalance = "99";
    ASSERT_TRUE(isDone(save(entry)));

    const Recordset row = one("SELECT * FROM tblItemMaster");
    EXPECT_EQ(row.text("Description"), "HOLLOW BLOCK 4\"");
    EXPECT_EQ(row.text("Locator"), "A-1");
    EXPECT_EQ(row.text("Remarks"), "IT'S PASTED");
    EXPECT_EQ(row.text("SupplierCode"), supplierId());
    EXPECT_EQ(row.currency("CostPrice").tenThousandths(), 12345678);
    EXPECT_TRUE(row.currency("Balance").isZero()) << "a typed balance never survives";
    EXPECT_EQ(row.text("UpdatedBy"), "ADMIN");
    EXPECT_EQ(row.date("DateUpdate"), QDate(2026, 3, 2));
    EXPECT_EQ(row.date("DateAquired"), QDate(2026, 1, 15));
}

TEST_F(ItemDocument, TheSavedBalanceIsThatOfTheBooks) {
    addItem("1000000001", "STEEL NAIL");
    store().run("INSERT INTO tblPurchaseMaster (PurchaseNo, PurchaseDate) VALUES ('P1', '2026-02-01')");
    store().run(
        "INSERT INTO tblPurchaseDetails (Reference, ItemID, Delivered) "
        "VALUES ('P1', '1000000001', 125000)");
    ItemEntry entry = goodItem();
    entry.ItemCode = "1000000001";
    entry.InventoryBalance = "99";
    ASSERT_TRUE(isDone(edit(entry)));
    EXPECT_EQ(one("SELECT Balance FROM tblItemMaster").currency("Balance").toPlainText(), "12.5");
}

TEST_F(ItemDocument, AnEditRunsNoDuplicateTest) {
    addItem("1000000001", "STEEL NAIL");
    addItem("1000000002", "WIRE");
    ItemEntry entry = goodItem();
    entry.ItemCode = "1000000002";
    entry.Description = "STEEL NAIL";
    entry.edit.changed = {"Description"};
    EXPECT_TRUE(isDone(edit(entry)));
    EXPECT_EQ(count("tblItemMaster WHERE Description = 'STEEL NAIL'"), 2);
    EXPECT_EQ(count("tblServer WHERE Server = '1000000002'"), 1) << "an edit leaves the counter";
}

// Another workstation stores prices while this one has the item on its screen.
TEST_F(ItemDocument, AnEditWritesWhatWasChangedAndHoldsItAgainstWhatIsStored) {
    addItem("1000000001", "STEEL NAIL");
    store().run("UPDATE tblItemMaster SET SellingPrice = 140000, UpdatedBy = 'CLERK'");
    ItemEntry entry = goodItem();
    entry.Description = "OTHER";
    EXPECT_TRUE(isDone(edit(entry)));
    EXPECT_EQ(count("tblItemMaster WHERE Description = 'STEEL NAIL' AND UpdatedBy = 'CLERK'"), 1);
    entry.WholesalePrice = "14.50";
    entry.edit.changed = {"WholesalePrice"};
    EXPECT_EQ(faultOf(edit(entry)).focus, "txtWholesale");
    entry.WholesalePrice = "13";
    EXPECT_TRUE(isDone(edit(entry)));
    EXPECT_EQ(count("tblItemMaster WHERE WholesalePrice = 130000 AND SellingPrice = 140000 AND UpdatedBy = "
                    "'ADMIN' AND Description = 'STEEL NAIL'"),
              1);
}

TEST_F(ItemDocument, AnEditOfNothingOrOfAnItemThatHasGoneWritesNothing) {
    EXPECT_TRUE(isDone(SaveItem(store(), goodItem(), false, " ")));
    EXPECT_EQ(std::get<Fault>(edit(goodItem())).box.title, "Error...");
    EXPECT_EQ(count("tblItemMaster"), 0);
}

TEST_F(ItemDocument, CodesFollowTheLastOne) {
    struct Row {
        const char* last;
        const char* next;
    };
    const Row rows[] = {
        {nullptr, "1000000001"}, {"1000000001", "1000000002"},
        {"0099", "100"},         {"ABC", "ABC"},
        {"1.5", "2.5"},          {"1,999", "2000"},
    };
    for (const Row& row : rows) {
        store().run("DELETE FROM tblServer");
        if (row.last) StoreLastItemCode(store(), row.last);
        EXPECT_EQ(NextItemCode(store()), row.next);
    }
}

TEST_F(ItemDocument, ARefusedStepLeavesNothingBehind) {
    const auto forget = [&] {
        store().run("DELETE FROM tblItemMaster");
        store().run("DELETE FROM tblServer");
    };
    int refusals = 0;
    for (int step = 0, writes = 0; writes >= step; ++step) {
        writes = 0;
        Connection::setStatementHook([&](const QString&) {
            if (writes++ == step) throw StoreError(StoreError::general, "The disk is full.");
        });
        const bool done = isDone(save(goodItem()));
        Connection::setStatementHook({});
        refusals += !done;
        // A balance that cannot be recomputed is passed over; every other step takes the whole save back.
        EXPECT_EQ(count("tblItemMaster"), done ? 1 : 0) << step;
        EXPECT_EQ(count("tblServer"), done ? 1 : 0) << step;
        forget();
    }
    EXPECT_GE(refusals, 3);
}

TEST_F(ItemDocument, DeletionIsGuardedByTheDocuments) {
    addItem("1000000001", "STEEL NAIL");
    store().run("INSERT INTO tblSalesDetails (Reference, ItemID) VALUES ('S1', '1000000001')");
    store().run("INSERT INTO tblPurchaseDetails (Reference, ItemID) VALUES ('P1', '1000000001')");
    const auto deletion = [&] { return faultOf(DeleteItem(store(), "1000000001")).text; };
    EXPECT_EQ(deletion(), "You Cannot Delete This Item, You have Sales Order for this Item!");
    store().run("DELETE FROM tblSalesDetails");
    EXPECT_EQ(deletion(), "You Cannot Delete This Item, You have Purchase Order for this Item!");
    store().run("DELETE FROM tblPurchaseDetails");
    EXPECT_EQ(deletion(), "");
    EXPECT_EQ(count("tblItemMaster"), 0);
    EXPECT_THROW(DeleteItem(store(), ""), StoreError);
}
}  // namespace
