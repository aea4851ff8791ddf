#include "masters/frmContactFound.h"
#include "masters/frmFound.h"
#include "masters/order_pickers.h"
#include "masters_screen_fixture.h"

namespace {
class Pickers : public ScreenTest {
  protected:
    void SetUp() override {
        ScreenTest::SetUp();
        addContact("Ana Reyes", true, false);
        addContact("Zamora Supply", true, true);
        addItem("1000000001", "STEEL NAIL");
        addItem("1000000002", "COPPER WIRE");
        addItem("A2", "ANVIL");
    }
    QStringList listed(const DataGrid::Source& source, const QString& column) {
        QStringList values;
        Recordset rows = store().execute(Sql("SELECT " + source.columns + " FROM " + source.from) +
                                         source.where + Sql(source.order));
        for (; !rows.eof(); rows.moveNext()) values << rows.trimmed(column);
        return values;
    }
    static void pressIn(const char* picker, Qt::Key key) {
        person::look(popup(picker));
        person::press(key);
    }
    QStringList picked_;
    GridPicker::Pick keep(const QString& column) {
        return [this, column](const GridPicker::Row& row) { picked_ << row(column); };
    }
};

TEST_F(Pickers, ContactsAreFilteredAndSearched) {
    struct Row {
        const char *search, *filter, *names;
    };
    const Row rows[] = {
        {"", "", "Ana Reyes,Mabuhay Trading,Zamora Supply"},
        {"", "S", "Mabuhay Trading,Zamora Supply"},
        {"", "C", "Ana Reyes,Zamora Supply"},
        {"am", "", "Zamora Supply"},
        {"a", "C", "Ana Reyes,Zamora Supply"},
        {"o'", "C", ""},
    };
    for (const Row& row : rows)
        EXPECT_EQ(listed(contactFoundSource(row.search, row.filter), "ContactName").join(','), row.names)
            << row.search << ' ' << row.filter;
}

TEST_F(Pickers, ItemsAreSearchedByKind) {
    struct Row {
        const char *search, *kind, *codes;
    };
    const Row rows[] = {
        {"", "D", "1000000001,1000000002,A2"},
        {"an", "D", "A2"},
        {"2", "P", "1000000002,A2"},
        {"2", "X", "1000000001,1000000002,A2"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(listed(itemFoundSource(row.search, row.kind), "ItemCode").join(','), row.codes);
}

TEST_F(Pickers, OrdersAreThoseOfTheContactAndWithABalance) {
    const char* const orders[][2] = {{"tblSalesMaster", "RefNo, RefDate, ContactNo, Balance"},
                                     {"tblPurchaseMaster", "PurchaseNo, PurchaseDate, ContactNo, Balance"}};
    for (const auto& [table, columns] : orders)
        for (const auto& [number, contact, balance] :
             {std::tuple{"A2", "C", 5}, {"B1", "C", 0}, {"A1", "C", -5}, {"A3", "D", 5}})
            insertRow(store(), table, columns,
                      {number, QDate(2026, 3, number[1] == '1' ? 1 : 2), contact, balance});
    const auto sales = [&](const char* search, const char* purpose) {
        return listed(salesFoundSource(search, "C", purpose), "RefNo").join(',');
    };
    const auto purchases = [&](const char* search, const char* mode) {
        return listed(disbursementFoundSource(search, "C", mode), "PurchaseNo").join(',');
    };
    EXPECT_EQ(sales("", "R") + '|' + sales("2", "B") + '|' + sales("1", "PP"), "A1,A2|A2|B1,A1");
    EXPECT_EQ(purchases("", "A") + '|' + purchases("1", "A") + '|' + purchases("b", "PX"), "A2,A1|A1|B1");
    ASSERT_TRUE(openSalesFound(store(), "", "C", "R", keep("RefNo")));
    pressIn("frmSalesFound", Qt::Key_Return);
    ASSERT_TRUE(openDisbursementFound(store(), "", "C", "A", keep("Balance")));
    pressIn("frmDisbursementFound", Qt::Key_Return);
    EXPECT_EQ(picked_, (QStringList{"A1", "0.00"}));
}

TEST_F(Pickers, ThePickReadsTheRowAsTheListShowsIt) {
    ASSERT_TRUE(openContactFound(store(), "ana", "C", keep("Terms")));
    pressIn("frmContactFound", Qt::Key_Return);
    ASSERT_TRUE(openItemFound(store(), "anvil", "D", keep("SellingPrice")));
    pressIn("frmFound", Qt::Key_Return);
    EXPECT_EQ(picked_, (QStringList{"30", "15.00"})) << "once each";
    EXPECT_FALSE(popup("frmFound"));
    ASSERT_TRUE(openContactFound(store(), "", "C", keep("ContactName")));
    pressIn("frmContactFound", Qt::Key_Escape);
    EXPECT_FALSE(popup("frmContactFound"));
    EXPECT_EQ(picked_.size(), 2) << "Esc picks nothing";
}

TEST_F(Pickers, AHeaderListsAgainInItsOrder) {
    ASSERT_TRUE(openItemFound(store(), "", "D", keep("ItemCode")));
    auto* grid = popup("frmFound")->findChild<DataGrid*>("dbgSearch");
    emit grid->headerClicked(1);
    EXPECT_EQ(grid->currentText("Description"), "ANVIL");
    pressIn("frmFound", Qt::Key_Return);
    EXPECT_EQ(picked_, QStringList{"A2"});
}

TEST_F(Pickers, AFailingStoreShowsItsBoxAndNoPicker) {
    store().run("ALTER TABLE tblItemMaster RENAME TO tblGone");
    boxes.expect("Error...");
    EXPECT_FALSE(openItemFound(store(), "", "D", keep("ItemCode")));
    EXPECT_FALSE(popup("frmFound"));
    store().run("ALTER TABLE tblGone RENAME TO tblItemMaster");
}
}  // namespace
