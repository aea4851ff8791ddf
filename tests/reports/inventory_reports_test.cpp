#include "books/stock_valuation.h"
#include "demo/demo_firm.h"
#include "platform/clock.h"
#include "platform/ui/screen_registry.h"
#include "platform/ui/text_box.h"
#include "reports/frame/report_output.h"
#include "reports/frame/report_run.h"
#include "reports/golden.h"
#include "reports/inventory/frmPrintInventory.h"
#include "reports/inventory/frmPrintStockCard.h"
#include "reports/inventory/prtStockCard.h"
#include "reports/lists/prtContactList.h"
#include "reports/register.h"
#include "support/box_script.h"
#include "support/screen_tour.h"
#include "support/statement_count.h"
#include "support/test_store.h"

#include <QCheckBox>

namespace {
QString textOf(std::optional<ReportJobParts> report) {
    return report ? reportOutput::plainText(runReport(*report)) : QString("nothing\n");
}

class Inventory : public SessionTest {
  protected:
    void SetUp() override {
        SessionTest::SetUp();
        Clock::freeze(QDateTime(QDate(2026, 4, 9), QTime(14, 5, 6)));
        addContact(store(), {"C1", "Reyes Trading"});
        addContact(store(), {"C2", "Abad Supply"});
        item("ZINC", "Common nail", "C2", QDate(2026, 2, 1));
        item("BOLT", "Zinc bolt", "C1", QDate(2026, 1, 1));
        item("NUT", "Nut", "GONE", QDate(2026, 3, 1));
        buy("P1", 2, amount(10), amount(60.0001));
        buy("P2", 5, amount(5), amount(66));
        sell("S1", 5, amount(4), amount(90), 5);
        sell("S2", 9, amount(7.5), amount(91.2345), 0);
        insertRow(store(), "tblReceiptDetails", "PayCode, Reference, Discount", {6, "S1", bound(amount(50))});
        // Not posted, and the balances of before still stand.
        insertRow(store(), "tblSalesDetails", "Reference, ItemID, Served", {"S3", "BOLT", bound(amount(2))});
        store().run("UPDATE tblItemMaster SET Balance = 990000");
        store().run("UPDATE tblStockValuation SET Balance = 990000, SalesCost = 0");
    }
    void TearDown() override {
        closeOpenScreens();
        SessionTest::TearDown();
    }
    void item(const char* code, const char* description, const char* supplier, QDate acquired) {
        insertRow(
            store(), "tblItemMaster",
            "ItemCode, Description, SupplierCode, DateAquired, Locator, Unit, CostPrice, OrderLevel",
            {code, description, supplier, acquired, description, "PC", bound(amount(60)), bound(amount(2))});
    }
    void move(const char* book, const char* number, int day, Currency quantity, Currency price) {
        AddStockValuation(store(), book, number, "C1", "ZINC", QDate(2026, 3, day), quantity, price);
    }
    void buy(const char* number, int day, Currency quantity, Currency price) {
        addPurchase(store(), {number, QDate(2026, 3, day), "C1", {{"ZINC", quantity, price}}});
        move("P", number, day, quantity, price);
    }
    // A line at half its list price, paid with this percent off.
    void sell(const char* number, int day, Currency quantity, Currency price, double percent) {
        const QDate date(2026, 3, day);
        addSale(store(), {number, date, "C1", {{"ZINC", quantity, price + price, amount(50)}}});
        move("S", number, day, quantity, price);
        insertRow(store(), "tblReceiptDetails", "PayCode, Reference, Discount",
                  {5, number, bound(amount(percent))});
    }
    QString stockCard(bool allDays) {
        return textOf(stockCardReport(
            store(), {.allDays = allDays, .from = "03/03/2026", .to = "03/05/2026", .item = "zinc"}));
    }
    BoxScript boxes;
};

TEST_F(Inventory, OfItemsAndOfOneItem) {
    QString text;
    const char* const orders[] = {"Item Description", "Supplier Name", "Warehouse Locator", "Aquisition Date",
                                  "Inventory Balance"};
    for (const char* order : orders)
        text += textOf(inventoryReport(store(), {.selection = order, .allDays = true}));
    const auto filtered = [&](bool allDays) {
        text += textOf(inventoryReport(store(), {.selection = "as typed",
                                                 .allDays = allDays,
                                                 .from = "1/1/2026",
                                                 .to = "02/28/2026",
                                                 .zeroOnly = true}));
    };
    filtered(false);
    filtered(true);
    compareWithGolden("item_list.txt", text);
    compareWithGolden("stock_card.txt", stockCard(true) + stockCard(false));
}

TEST_F(Inventory, AsksTheStoreAsOftenForOneRowAsForMany) {
    const std::function<void()> runs[] = {
        [&] { stockCard(true); }, [&] { textOf(inventoryReport(store(), {.allDays = true})); },
        [&] { textOf(contactListReport(store(), "SELECT * FROM tblContactMaster", "")); }};
    std::vector<int> few;
    for (const auto& run : runs) {
        run();
        few.push_back(statementsOf(store(), run));
    }
    for (int number = 0; number < 40; ++number) {
        addContact(store(), {QString("K%1").arg(number), "Bulk"});
        addItem(store(), {.code = QString("I%1").arg(number), .description = "Bulk"});
        sell(qPrintable(QString("B%1").arg(number)), 9, amount(1), amount(1), 1);
    }
    for (std::size_t run = 0; run < few.size(); ++run) {
        runs[run]();
        EXPECT_EQ(statementsOf(store(), runs[run]), few[run]) << run;
    }
}

TEST_F(Inventory, TheScreensCheckInTheirOrder) {
    registerReportScreens();
    QWidget* screen = openRegistered("frmPrintInventory");
    screen->findChild<TextBox*>("txtFrom")->setText("2/30/2026");
    boxes.expect("Error!", "Invalid Date Value!");
    QMetaObject::invokeMethod(screen, "PrintRecord");
    EXPECT_TRUE(screen->findChild<TextBox*>("txtFrom")->hasFocus());
    screen->findChild<QCheckBox*>("chkExclude")->setChecked(true);
    QMetaObject::invokeMethod(screen, "PrintRecord");
    EXPECT_TRUE(ScreenRegistry::instance().opened("prtItemList"));
    EXPECT_EQ(inventoryFault(store(), {.selection = " "})->box.text, "Please Select a Journal to Print!");
    const std::pair<PrintRequest, const char*> cards[] = {
        {{}, "Please Select an Item to Generate Stock Card!"},
        {{.item = "GONE"}, "Item Does Not Exist, Please Add This to Item Master File..."},
        {{.from = "x", .to = "1/1/2026", .item = "ZINC"}, "Invalid Date Value!"},
        {{.from = "1/2/2026", .to = "1/1/2026", .item = "ZINC"},
         "Date From Should Not be Greater than Date To!"}};
    for (const auto& [request, text] : cards) EXPECT_EQ(stockCardFault(store(), request)->box.text, text);
    EXPECT_FALSE(stockCardFault(store(), {.from = "1/1/2026", .to = "1/1/2026", .item = "zinc"}));
}
}  // namespace

// As the routine for one item values each of them.
TEST(StockValues, OfAllItemsOfTheDemoFirm) {
    TestStore store;
    fillDemoFirm(store.connection(), QDate(2026, 3, 31));
    Boxes boxes;
    const KeyedFigures values = StockValues(store.connection(), boxes);
    int stocked = 0;
    for (Recordset item = store.connection().execute("SELECT ItemCode FROM tblItemMaster"); !item.eof();
         item.moveNext()) {
        const QString code = item.text("ItemCode");
        const Currency value = StockValue(store.connection(), code, boxes);
        EXPECT_EQ(values.of(code), value) << qPrintable(code);
        stocked += value.isZero() ? 0 : 1;
    }
    EXPECT_GT(stocked, 5);
    EXPECT_EQ(boxes, Boxes());
}
