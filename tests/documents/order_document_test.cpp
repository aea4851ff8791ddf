#include "books/posting_queue.h"
#include "documents/order_books.h"
#include "foundation/store_place.h"
#include "support/crash_runner.h"

using ::testing::ElementsAre;

namespace {
// Both sides keep the same rules; the sides differ in names and words.
struct Side {
    const char* name;
    const OrderBook& book;
    const char* noCode;
    const char* duplicate;
    const char* unknown;
};
const Side sides[]{
    {"Sales", salesOrders, "Please Enter Reference No.!", "Duplicate Reference No., Please Assign Another!",
     "Customer Does Not Exist, Please Add This To Customer Master File First..."},
    {"Purchases", purchaseOrders, "Please enter Purchase No.!",
     "Duplicate Purchase No., Please Assign Another!",
     "Supplier does not exist, please add this to Supplier Master File..."}};

class Order : public OrderBooks, public ::testing::WithParamInterface<Side> {
  protected:
    const OrderBook& book() const { return GetParam().book; }
    Outcome save(const OrderDocument& document) { return saveOrder(store, book(), document); }

    std::vector<std::string> master(const QStringList& columns) {
        return rows(QString("SELECT * FROM %1 ORDER BY %2").arg(book().master.table, book().master.key),
                    columns);
    }
    std::vector<std::string> details() {
        return rows(QString("SELECT * FROM %1").arg(book().detailTable),
                    {"Reference", "ItemID", "Ordered", book().quantityColumn, "Unit", "UnitPrice", "Discount",
                     "Total"});
    }
    Currency balanceOf(const QString& key) {
        return store
            .execute(
                {QString("SELECT * FROM %1 WHERE %2 = ?").arg(book().master.table, book().master.key), {key}})
            .currency("Balance");
    }
    void pay(const QString& key, const char* amount) {
        if (book().sells)
            insertRow(store, "tblReceiptDetails", "ZevRef, Reference, Amount, DiscountAmount",
                      {1, key, bound(money(amount)), 0});
        else
            insertRow(store, "tblDisbursementDetails", "PuchaseID, PayAmount, DirectPayment",
                      {key, bound(money(amount)), false});
    }
    // A stored order with other lines, and a new one with the same.
    QList<OrderDocument> editedAndFresh() {
        OrderDocument edited = reopened(book(), saved(book(), {line("I1", "2", "2", "10")}));
        edited.lines = {line("I2", "7", "3", "5.5"), line("I1", "1", "1", "12")};
        return {edited, order(book(), edited.lines)};
    }
    // Every row of every table that a save may touch.
    std::vector<std::string> everything() {
        std::vector<std::string> all;
        const std::pair<const char*, QStringList> tables[]{
            {book().master.table,
             {book().master.key, book().dateColumn, "ContactNo", book().amountColumn, "Remarks", "Printed",
              "RecordLock", "Balance", "UpdatedBy", "DateUpdate"}},
            {book().detailTable, {"Reference", "ItemID", book().quantityColumn, "UnitPrice", "Total"}},
            {"tblForPosting", {"BookID", "Reference", "Contact", "TransDate"}},
            {"tblForPostingItem", {"ItemID"}},
            {"tblStockValuation", {"ZevRef", "BookID", "Reference"}},
            {"tblItemMaster", {"ItemCode", "CostPrice", "SellingPrice", "WholesalePrice", "Balance"}},
            {book().serial.counterTable, {"Server"}}};
        for (const auto& [table, columns] : tables)
            for (const std::string& row : rows(QString("SELECT * FROM %1").arg(table), columns))
                all.push_back(std::string(table) + ": " + row);
        return all;
    }
};
INSTANTIATE_TEST_SUITE_P(Sides, Order, ::testing::ValuesIn(sides),
                         [](const auto& side) { return std::string(side.param.name); });

TEST_P(Order, IsCheckedInItsOrder) {
    saved(book(), {line("I1", "1", "1", "10")});
    OrderDocument document;
    document.code = " ";
    document.date = "02/30/2026";
    document.contactName = " ";
    document.lines = {line("I1", "1", "1", "-10")};
    const struct {
        std::function<void()> mend;
        const char* focus;
        std::string text;
    } steps[]{
        {[] {}, "txtCode", std::string("No Code!: ") + GetParam().noCode},
        {[&] { document.code = "03-1001-2026 "; }, "txtSerialCode",
         std::string("Error!: ") + GetParam().duplicate},
        {[&] { document.code = "03-1002-2026"; }, "txtSerialCode",
         "Error!: Invalid Serial No.! Please Enter a Number of up to Nine Digits!"},
        {[&] { document.serial = "1002"; }, "cboCustomer", "No Customer!: Please Select Customer!"},
        {[&] { document.contactName = "Nobody"; }, "lvwItems",
         "Net Amount!: Amount is Negative! System Cannot Allow Negative Total!"},
        {[&] { document.lines.clear(); }, "cmdAdd",
         "Net Amount!: There is No Order Made for this Record! Please Add Item to Order!"},
        {[&] { document.lines = {line("I1", "1", "1", "10")}; }, "txtRefDate", "Error!: Invalid Date Value!"},
        {[&] { document.date = "2/28/26"; }, "cboCustomer",
         std::string("Does not exist!: ") + GetParam().unknown},
        {[&] { document.contactName = "nena "; }, "", "done"}};
    for (const auto& step : steps) {
        step.mend();
        const Outcome outcome = save(document);
        EXPECT_EQ(said(outcome), step.text);
        EXPECT_EQ(focusOf(outcome), step.focus) << step.text;
    }
}

TEST_P(Order, IsStoredColumnByColumn) {
    OrderDocument document =
        order(book(), {line("I2", "3", "2", "6.12345", "12.5"), line("I1", "1000", "0", "15")}, "3/2/26");
    document.remarks = "  by truck's load ";
    ASSERT_EQ(said(save(document)), "done");
    EXPECT_THAT(master({book().master.key, "ContactNo", book().amountColumn, "Remarks", "Printed",
                        "RecordLock", "Balance", "UpdatedBy"}),
                ElementsAre("03-1001-2026 | C1 | 107200 | by truck's load | 0 | 0 | 107200 | ADMIN"));
    const Recordset row = store.execute(QString("SELECT * FROM %1").arg(book().master.table));
    EXPECT_EQ(row.date(book().dateColumn), QDate(2026, 3, 2));
    EXPECT_EQ(row.dateTime("DateUpdate"),
              QDateTime(QDate(2026, 3, 3), book().sells ? QTime(9, 30) : QTime(0, 0)));
    EXPECT_THAT(details(), ElementsAre("03-1001-2026 | I2 | 30000 | 20000 | PC | 61234 | 125000 | 107200",
                                       "03-1001-2026 | I1 | 10000000 | 0 | PC | 150000 | 0 | 0"));
    EXPECT_THAT(rows("SELECT * FROM tblForPosting", {"BookID", "Reference", "Contact"}),
                ElementsAre(std::string(book().bookId) + " | 03-1001-2026 | C1"));
    EXPECT_EQ(store.execute("SELECT * FROM tblForPosting").date("TransDate"), QDate(2026, 3, 2));
    EXPECT_THAT(rows("SELECT * FROM tblForPostingItem ORDER BY ItemID", {"ItemID"}), ElementsAre("I1", "I2"));
    EXPECT_EQ(itemFigure("I2", "Balance"), money(book().sells ? "-2" : "2"));
    EXPECT_EQ(itemFigure("I2", book().sells ? "SellingPrice" : "CostPrice"), money("6.1234"))
        << "the unit price, not the net";
}

TEST_P(Order, IsReadBackInTheFormatsOfTheScreen) {
    const QString key = saved(book(), {line("I1", "1200", "1200.5", "15", "10")});
    const LoadedOrder loaded = loadOrder(store, book(), key + " ");
    EXPECT_EQ((QStringList{loaded.document.code, loaded.document.date, loaded.document.contactName,
                           loaded.total, loaded.balance, loaded.lastUpdate, loaded.updatedBy,
                           loaded.contact.term, loaded.contact.balance, loaded.contact.creditLimit}),
              (QStringList{key, "03/03/2026", "Nena", "16,206.75", "16,206.75", "03/03/2026", "ADMIN",
                           "30 Days", "16,206.75", "5,000.00"}));
    EXPECT_EQ(
        loadOrderLines(store, book(), key).value(0).texts(),
        QStringList({"I1", "Rice", "1200", "1200.5", "PC", "15.0000", "10.0000", "13.5000", "16,206.75"}));
    EXPECT_THROW(loadOrder(store, book(), "none"), StoreError);
}

TEST_P(Order, ReplacesItsLinesWhenItIsSavedAgain) {
    const QString key = saved(book(), {line("I1", "2", "2", "10"), line("I2", "1", "1", "5")});
    AddStockValuation(store, book().bookId, key, "C1", "I1", QDate(2026, 3, 3), money("2"), money("10"));
    pay(key, "24");
    store.run(QString("UPDATE %1 SET RecordLock = True, Printed = True").arg(book().master.table));
    OrderDocument again = reopened(book(), key);
    again.lines = {line("I1", "2", "1", "10")};
    ASSERT_EQ(said(save(again)), "done");
    EXPECT_THAT(master({"RecordLock", "Printed"}), ElementsAre("0 | 0"));
    EXPECT_EQ(details().size(), 1U);
    EXPECT_EQ(balanceOf(key), money("-14")) << "the new total less the payments, negative without a word";
    EXPECT_EQ(CountRecords(store, "tblForPosting"), 1);
    EXPECT_EQ(CountRecords(store, "tblForPostingItem"), 2);
    EXPECT_EQ(CountRecords(store, "tblStockValuation"), 0) << "until the next end of day";
    EXPECT_EQ(itemFigure("I2", "Balance").abs(), money("1")) << "a dropped item keeps its quantity";
}

TEST_P(Order, ThatHasGoneIsNotSavedAgain) {
    const QString key = saved(book(), {line("I1", "1", "1", "10")});
    const OrderDocument document = reopened(book(), key);
    store.run(QString("DELETE FROM %1").arg(book().master.table));
    const auto before = everything();
    EXPECT_FALSE(isDone(save(document)));
    EXPECT_EQ(everything(), before);
}

TEST_P(Order, PeeksAtItsNumberAndStoresWhatWasTyped) {
    const auto saveAs = [this](const char* serial) {
        OrderDocument document = order(book(), {line("I1", "1", "0", "10")});
        document.serial = serial;
        document.code = QString("03-%1-2026").arg(serial);
        EXPECT_EQ(said(save(document)), "done");
        return newOrder(store, book()).code;
    };
    EXPECT_EQ(newOrder(store, book()).code, "03-1001-2026");
    EXPECT_EQ(newOrder(store, book()).code, "03-1001-2026") << "looking takes nothing";
    EXPECT_EQ(saveAs("1001"), "03-1002-2026");
    EXPECT_EQ(saveAs("5000"), "03-5001-2026");
    EXPECT_EQ(saveAs("1500"), "03-1501-2026");
    Clock::freeze(QDateTime(QDate(2027, 1, 2), QTime(8, 0)));
    EXPECT_EQ(newOrder(store, book()).code, "01-1501-2027") << "the serial does not start again";
}

TEST_P(Order, OfTwoClerksWithOneNumberIsRefusedToTheSecond) {
    const OrderDocument first = order(book(), {line("I1", "1", "1", "10")});
    OrderDocument second = first;
    second.lines = {line("I2", "9", "9", "9")};
    second.serial = "7777";
    Connection other;
    other.open(storePlace(), passwordFor(storePlace()));
    ASSERT_EQ(said(saveOrder(other, book(), first)), "done");
    const auto before = everything();
    EXPECT_EQ(said(save(second)), std::string("Error!: ") + GetParam().duplicate);
    EXPECT_EQ(everything(), before) << "and its typed serial is not stored";
}

TEST_P(Order, ThatPassedTheTestTogetherMeetsTheKey) {
    const OrderDocument document = order(book(), {line("I1", "1", "1", "10")});
    const auto before = everything();
    bool taken = false;
    Connection::setStatementHook([&](const QString& statement) {
        if (taken || !statement.startsWith("DELETE")) return;
        taken = true;
        store.run({QString("INSERT INTO %1 (%2) VALUES (?)").arg(book().master.table, book().master.key),
                   {document.code}});
    });
    EXPECT_EQ(said(save(document)),
              "Duplicate!: Reference No. already exists, please edit and assign another number.");
    Connection::setStatementHook({});
    EXPECT_EQ(everything(), before);
}

// Refuses the n-th writing statement of a save, from the first to the last. A store that is held too long is
// passed over by no step.
TEST_P(Order, IsSavedWholeOrNotAtAll) {
    for (const OrderDocument& document : editedAndFresh()) {
        const auto before = everything();
        int refused = 0;
        for (;; ++refused) {
            int left = refused;
            Connection::setStatementHook([&left](const QString&) {
                if (left-- == 0) throw StoreError(StoreError::busy, "Held.");
            });
            const Outcome outcome = save(document);
            Connection::setStatementHook({});
            if (isDone(outcome)) break;
            EXPECT_EQ(said(outcome), "Error...: Held.");
            EXPECT_EQ(everything(), before) << "refused at statement " << refused;
            ASSERT_LT(refused, 200);
        }
        EXPECT_GT(refused, 10) << "statements of a save of two lines";
        EXPECT_NE(everything(), before) << "saving again is a fresh try";
    }
}

TEST_P(Order, ABlankBeforeTheContactCostsNoDiscount) {
    OrderDocument document;
    document.contactName = " Nena ";
    EXPECT_EQ(lineOrder(document).contactName, "Nena");
}

// Killed at any statement, a save leaves the books as before it or, once it is done, as after it.
TEST_P(Order, SurvivesASuddenEndAtEveryStatement) {
    for (const OrderDocument& document : editedAndFresh()) {
        const auto before = everything();
        store.close();
        const auto save = [&](Connection& own) { EXPECT_TRUE(isDone(saveOrder(own, book(), document))); };
        const int statements = crashAtEveryStatement(save, [&](Connection&, const CrashPoint& point) {
            EXPECT_EQ(everything() != before, point.acknowledged) << "at " << point.statement;
            if (point.acknowledged) return;
            EXPECT_EQ(said(saveOrder(store, book(), document)), "done") << "a second try goes through";
        });
        EXPECT_GT(statements, 10);
        store.open(storePlace(), passwordFor(storePlace()));
    }
}

TEST_P(Order, RefusesATotalBeyondTheRange) {
    OrderDocument document = order(book(), {line("I1", "1", "1", "10"), line("I2", "1", "1", "10")});
    const auto before = everything();
    document.lines[0].total = document.lines[1].total = money("900,000,000,000,000");
    EXPECT_EQ(said(save(document)), "Error...: Overflow");
    EXPECT_EQ(everything(), before);
}

TEST_P(Order, TakesASerialOfUpToNineDigits) {
    const std::pair<const char*, bool> cases[]{{"", false},          {"x1", false}, {"1.5", false},
                                               {"-1", false},        {" 7 ", true}, {"123456789", true},
                                               {"1234567890", false}};
    for (const auto& [serial, taken] : cases) {
        OrderDocument document = order(book(), {line("I1", "1", "0", "10")});
        document.serial = serial;
        document.code = QString("03-%1-2026").arg(serial);
        EXPECT_EQ(isDone(save(document)), taken) << serial;
    }
}

// What only sales have.
class Sale : public OrderBooks {
  protected:
    // A line that its dialog has tested against ten pieces.
    static OrderLine testedLine(const char* served) {
        OrderLine tested = line("I1", "9", served, "15");
        tested.tested = money("10");
        return tested;
    }
};

TEST_F(Sale, IsTestedAgainWhereItsStockHasShrunkSince) {
    saved(purchaseOrders, {line("I1", "10", "10", "10")}, "03/02/2026");
    const std::string refused =
        "Error!: Purchase This Item First! Inventory Balance For This Sales Period is Less Than your Served "
        "Item!";
    const OrderDocument first = order(salesOrders, {testedLine("6")});
    ASSERT_EQ(said(saveOrder(store, salesOrders, first)), "done");
    OrderDocument second = order(salesOrders, {testedLine("5")});
    EXPECT_EQ(said(saveOrder(store, salesOrders, second)), refused) << "another clerk has sold it";
    EXPECT_EQ(CountRecords(store, "tblSalesMaster"), 1);
    second.lines = {testedLine("4")};
    second.date = "03/01/2026";
    EXPECT_EQ(said(saveOrder(store, salesOrders, second)), refused) << "bought the day after";
    second.date = "03/03/2026";
    EXPECT_EQ(said(saveOrder(store, salesOrders, second)), "done") << "there is less, and enough";
    OrderDocument again = reopened(salesOrders, first.code);
    again.lines = {testedLine("6")};
    EXPECT_EQ(said(saveOrder(store, salesOrders, again)), "done") << "what it holds itself is not missing";
    again.lines = {line("I1", "9", "9", "15")};
    EXPECT_EQ(said(saveOrder(store, salesOrders, again)), "done")
        << "a line nobody entered now stays as it is";
}

TEST_F(Sale, WritesWholesalePricesOnlyWhileItIsNew) {
    OrderDocument sale = order(salesOrders, {line("I1", "1", "1", "12")});
    sale.wholesale = true;
    ASSERT_EQ(said(saveOrder(store, salesOrders, sale)), "done");
    EXPECT_EQ(itemFigure("I1", "WholesalePrice"), money("12"));
    EXPECT_EQ(itemFigure("I1", "SellingPrice"), money("15"));
    ASSERT_EQ(said(saveOrder(store, salesOrders, reopened(salesOrders, sale.code))), "done");
    EXPECT_EQ(itemFigure("I1", "SellingPrice"), money("12"));
}

}  // namespace
