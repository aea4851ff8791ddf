#include "documents/order_books.h"

using ::testing::HasSubstr;

namespace {
TEST(LinePrice, FollowsCostDiscountAndServedQuantity) {
    const struct {
        const char *cost, *discount, *serve, *netPrice, *total;
    } cases[]{{"100.0000", "12.5", "1", "87.5000", "87.50"},
              {"100.0000", "99.9999", "1", "0.0001", "0.00"},
              // Without a discount the cost stands as it was typed.
              {"7.5", "0", "2", "7.5", "15.00"},
              {"7.5", "", "2", "7.5", "15.00"},
              {"1,234.5000", "10", "3", "1,111.0500", "3,333.15"},
              // The order counts nothing until it is served.
              {"50.0000", "0", "0", "50.0000", "0.00"},
              {"50.0000", "0", "", "50.0000", "0.00"},
              // Printed halves of a centavo go away from zero.
              {"0.0050", "0", "1", "0.0050", "0.01"},
              {"0.0150", "0", "1", "0.0150", "0.02"},
              // A product beyond the range is no number.
              {"900000000000", "0", "900000000000", "900000000000", ""}};
    for (const auto& row : cases) {
        LineEntry entry;
        entry.cost = row.cost;
        entry.discount = row.discount;
        entry.serve = row.serve;
        computeNetPrice(entry);
        EXPECT_FALSE(computeLineTotal(entry));
        EXPECT_EQ(entry.netPrice, row.netPrice) << row.cost << ' ' << row.discount;
        EXPECT_EQ(entry.total, row.total) << row.cost << " x " << row.serve;
    }
}

TEST(LineDiscount, StopsBelowOneHundred) {
    struct {
        const char* typed;
        const char* left;  // null: refused
    } const cases[]{{"99.9999", "99.9999"}, {"100", nullptr}, {"250", nullptr},
                    {"12.5", "12.5000"},    {"", "0.0000"},   {"1.2.3", "0.0000"}};
    for (const auto& row : cases) {
        LineEntry entry;
        entry.discount = row.typed;
        const auto fault = leaveDiscount(entry);
        EXPECT_EQ(fault.has_value(), row.left == nullptr) << row.typed;
        EXPECT_EQ(entry.discount, row.left ? row.left : row.typed);
        EXPECT_EQ(fault.value_or(Fault{{}, "txtDiscount"}).focus, "txtDiscount");
    }
}

// The dialog over the small firm's books, with 10 pieces of rice bought on the 1st.
class Line : public OrderBooks {
  protected:
    void SetUp() override {
        OrderBooks::SetUp();
        saved(purchaseOrders, {line("I1", "10", "10", "10")}, "03/01/2026");
    }

    LineEntry sale(const char* serve = "1") {
        LineEntry entry;
        entry.itemCode = "I1";
        entry.description = "Rice";
        entry.unit = "PC";
        entry.cost = "15.0000";
        entry.order = "5";
        entry.serve = serve;
        return entry;
    }

    LineCheck check(LineEntry entry, const OrderBook& book = salesOrders, const Answers& answers = {}) {
        return checkLine(
            store, book, at, entry, [this](const QString& code) { return entered.contains(code); }, answers);
    }

    LineOrder at{"03-1001-2026", "03/03/2026", "Nena"};
    QStringList entered;
};

TEST_F(Line, IsCheckedInItsOrder) {
    // Each row mends the fault of the row before, so each text shows that its check comes first.
    LineEntry entry;
    entry.discount = "100";
    entry.order = "x";
    entry.serve = "y";
    entry.cost = "0";
    entered = {"I1"};
    const struct {
        std::function<void()> mend;
        const char* text;
    } steps[]{
        {[] {}, "Error!: Discount Percentage should not be Equal or Greater than 100%"},
        {[&] { entry.discount = "0"; }, "Please enter value!: Please Enter Numeric for Order Ouantity!"},
        {[&] { entry.order = "0"; }, "Please enter value!: Please Enter Numeric for Served Ouantity!"},
        {[&] { entry.serve = "11"; }, "Enter a Product!: Please Enter a Product..."},
        {[&] {
             entry.itemCode = "I9";
             entry.description = "Nothing";
         },
         "Error!: Please Enter Product Price!"},
        {[&] { entry.cost = "9"; }, "Error!: Please Enter Your Order Quantity!"},
        {[&] { entry.order = "11"; }, "Error!: Item Does Not Exist! Please Create Item in the Database"},
        {[&] {
             entry.itemCode = "i1";
             entered = {"i1"};
         },
         "Error!: Nothing Had Already Been Entered Below! You May Click on Edit Button to Modify Record!"},
        {[&] { entered.clear(); },
         "? Low Selling Price!: Selling Price is Less than the Cost Price of this Product! Do you still want "
         "to Continue?"},
        {[&] { entry.cost = "10"; },
         "Error!: Purchase This Item First! Inventory Balance For This Sales Period is Less Than your Served "
         "Item!"},
        {[&] { entry.serve = "10"; }, "done"}};
    for (const auto& step : steps) {
        step.mend();
        const LineCheck checked = check(entry);
        EXPECT_EQ(said(checked.outcome), step.text);
        EXPECT_EQ(checked.closesPopup, QString(step.text).contains("Already Been Entered")) << step.text;
    }
}

TEST_F(Line, AsksAboutThePriceStrictlyAfterTheDiscount) {
    const struct {
        const OrderBook& book;
        const char* cost;
        const char* discount;
        bool asks;
    } cases[]{{salesOrders, "10", "0", false},        {salesOrders, "9.9999", "0", true},
              {salesOrders, "10", "0.01", true},      {purchaseOrders, "15", "0", false},
              {purchaseOrders, "15.0001", "0", true}, {purchaseOrders, "15.0001", "1", false}};
    for (const auto& row : cases) {
        LineEntry entry = sale();
        entry.cost = row.cost;
        entry.discount = row.discount;
        EXPECT_EQ(said(check(entry, row.book).outcome).starts_with("? Low Selling Price!"), row.asks)
            << row.book.bookId << row.cost << " less " << row.discount;
    }
}

TEST_F(Line, TakesTheAnswerOfItsQuestion) {
    LineEntry cheap = sale();
    cheap.cost = "9";
    EXPECT_TRUE(isDone(check(cheap, salesOrders, {{"price", BoxAnswer::Yes}}).outcome));
    const Outcome stopped = check(cheap, salesOrders, {{"price", BoxAnswer::No}}).outcome;
    ASSERT_TRUE(std::holds_alternative<Fault>(stopped));
    EXPECT_TRUE(std::get<Fault>(stopped).box.text.isEmpty()) << "No is no news to the person who said it";
}

TEST_F(Line, CountsTheStockAsOfTheDocumentDate) {
    saved(purchaseOrders, {line("I1", "5", "5", "10")}, "03/04/2026");
    const struct {
        const char* date;
        const char* serve;
        bool served;
    } cases[]{{"02/28/2026", "1", false},  {"02/28/2026", "0", true},  {"03/01/2026", "10", true},
              {"03/03/2026", "11", false}, {"03/04/2026", "15", true}, {"no date", "1", false}};
    for (const auto& row : cases) {
        at.date = row.date;
        EXPECT_EQ(isDone(check(sale(row.serve)).outcome), row.served) << row.date << " " << row.serve;
    }
}

TEST_F(Line, GivesBackWhatItsOwnOrderServed) {
    const QString key = saved(salesOrders, {line("I1", "8", "8", "15")});
    EXPECT_FALSE(isDone(check(sale("3")).outcome) && at.code != key);
    at.code = key;
    EXPECT_TRUE(isDone(check(sale("10")).outcome));
    EXPECT_FALSE(isDone(check(sale("11")).outcome));
    at.code = "another";
    EXPECT_TRUE(isDone(check(sale("2")).outcome));
    EXPECT_FALSE(isDone(check(sale("3")).outcome));
}

TEST_F(Line, RefusesServedNothingWhileTheStockIsNegative) {
    store.run({"INSERT INTO tblSalesMaster (RefNo, RefDate) VALUES ('X', ?)", {QDate(2026, 3, 2)}});
    store.run({"INSERT INTO tblSalesDetails (Reference, ItemID, Served) VALUES ('X', 'I1', ?)",
               {bound(money("11"))}});
    EXPECT_THAT(said(check(sale("0")).outcome), HasSubstr("Purchase This Item First!"));
    EXPECT_TRUE(isDone(check(sale("99"), purchaseOrders).outcome)) << "a purchase tests no stock";
}

TEST_F(Line, BecomesTheTextsOfTheList) {
    LineEntry entry = sale("2.50");
    entry.description = " Rice ";
    entry.cost = "1234.5";
    entry.discount = "12.5";
    entry.unit.clear();
    entry.order = "1,000.0";
    ASSERT_TRUE(isDone(checkLine(store, purchaseOrders, at, entry, [](const QString&) { return false; },
                                 {{"price", BoxAnswer::Yes}})
                           .outcome));
    EXPECT_EQ(lineOf(entry).texts(), QStringList({"I1", "Rice", "1000", "2.5", "-", "1,234.5000", "12.5000",
                                                  "1,080.1875", "2,700.47"}));
    EXPECT_EQ(OrderLine::fromTexts(lineOf(entry).texts()), lineOf(entry));
}

TEST_F(Line, TakesPriceAndDiscountFromTheMasters) {
    const struct {
        const OrderBook& book;
        bool wholesale;
        const char* cost;
    } cases[]{
        {salesOrders, false, "15.0000"}, {salesOrders, true, "13.0000"}, {purchaseOrders, false, "10.0000"}};
    for (const auto& row : cases) {
        at.wholesale = row.wholesale;
        LineEntry entry;
        entry.itemCode = "i1 ";
        ASSERT_TRUE(CheckCode(store, row.book, at, entry));
        EXPECT_EQ(entry.cost, row.cost);
        EXPECT_EQ(entry.discount, "12.5000");
        EXPECT_EQ(entry.itemCode + entry.description + entry.unit, "I1RicePC");
        EXPECT_EQ(entry.inventory, "10");
    }
}

TEST_F(Line, LosesItsDiscountWhenItsCodeIsLeftDuringAChange) {
    LineEntry entry = entryOf(line("I1", "5", "5", "99", "20"));
    ASSERT_TRUE(CheckCode(store, salesOrders, at, entry));
    EXPECT_EQ(entry.cost, "99.0000");
    EXPECT_EQ(entry.discount, "0.0000");
    EXPECT_EQ(entry.netPrice, "99.0000");
}

TEST_F(Line, FindsNoItemBehindAnEmptyOrUnknownCode) {
    LineEntry entry;
    entry.description = "typed";
    EXPECT_FALSE(CheckCode(store, salesOrders, at, entry));
    EXPECT_EQ(entry.description, "");
    entry.itemCode = "I9";
    entry.description = "typed";
    EXPECT_FALSE(CheckCode(store, salesOrders, at, entry));
    EXPECT_EQ(entry.description, "typed");
}

// The quick change of a quantity, on a line of 5 ordered and 1 served.
class ServedQuantity : public Line {
  protected:
    Outcome change(const OrderBook& book, QString value, const Answers& answers = {}) {
        return changeServed(store, book, at, row, value, answers);
    }
    OrderLine row = line("I1", "5", "1", "15", "10");
};

TEST_F(ServedQuantity, IsCheckedInItsOrder) {
    EXPECT_EQ(said(change(salesOrders, "x")), "Error!: Please Enter Numeric Price Value!");
    EXPECT_EQ(said(change(salesOrders, "10.5")),
              "Error!: Inventory Balance For This Sales Period is Only 10 Less Than your Served Item!");
    EXPECT_EQ(said(change(salesOrders, "6")),
              "? Error!: Item Served is Greater Than Ordered By the Customer! Do You Wish to Continue?");
    EXPECT_EQ(said(change(purchaseOrders, "6")),
              "? Error!: Item Delivered is Greater Than Your Order! Do You Wish to Continue?");
    EXPECT_EQ(row.served, money("1"));
}

TEST_F(ServedQuantity, ChangesQuantityAndTotalOnly) {
    const OrderLine before = row;
    EXPECT_EQ(said(change(salesOrders, "4.50")), "done");
    EXPECT_EQ(row.served, money("4.5"));
    EXPECT_EQ(row.total, money("60.75"));
    row.served = before.served;
    row.total = before.total;
    row.tested = before.tested;
    EXPECT_EQ(row, before);
    EXPECT_FALSE(isDone(change(salesOrders, "6", {{"quantity", BoxAnswer::No}})));
    EXPECT_TRUE(isDone(change(salesOrders, "6", {{"quantity", BoxAnswer::Yes}})));
    EXPECT_EQ(row.total, money("81"));
}
}  // namespace
