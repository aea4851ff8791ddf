#include "books/balances.h"

#include "books/books_test.h"

#include <limits>

namespace {
const Currency most = Currency::fromTenThousandths(std::numeric_limits<qint64>::max());

}  // namespace

class BalancesTest : public BooksTest {
  protected:
    void addSaleOf(const QString& refNo, Currency total, const QDate& date = day(1)) {
        insertRow(store, "tblSalesMaster", "RefNo, RefDate, ContactNo, TotalAmount",
                  {refNo, date, "C1", bound(total)});
    }
    void addReceiptLine(const QString& refNo, const QVariant& paid, const QVariant& granted) {
        insertRow(store, "tblReceiptDetails", "ZevRef, Reference, Amount, DiscountAmount",
                  {++zevRef_, refNo, paid, granted});
    }
    void addReceipt(const QVariant& paid, const QVariant& granted) {
        insertRow(store, "tblReceiptMaster", "PayNo, CustomerNo, PaymentAmount, TotalDiscAmount",
                  {++zevRef_, "C1", paid, granted});
    }

  private:
    qint64 zevRef_ = 0;
};

TEST_F(BalancesTest, AReceivableIsTheSaleLessThePayment) {
    const struct {
        const char* name;
        QVariant paid, granted;
        double balance;
    } cases[] = {
        {"paid and discount", bound(amount(900)), bound(amount(100)), 0},
        {"part paid", bound(amount(250.5)), bound(amount(0)), 749.5},
        {"no receipt sums to null", {}, {}, 1000},
        {"a null discount loses the whole payment", bound(amount(900)), QVariant(), 1000},
        {"a null amount too", QVariant(), bound(amount(100)), 1000},
        {"a negative payment counts as one", bound(amount(-300)), bound(amount(100)), 800},
        {"overpaid", bound(amount(1500)), bound(amount(0)), -500},
    };
    for (const auto& [name, paid, granted, balance] : cases) {
        write("DELETE FROM tblSalesMaster");
        write("DELETE FROM tblReceiptDetails");
        write("DELETE FROM tblReceiptMaster");
        addSaleOf("S1", amount(1000));
        addReceiptLine("S1", paid, granted);
        addReceiptLine("other", bound(amount(1)), bound(amount(1)));
        addReceipt(paid, granted);
        EXPECT_EQ(SalesBalance(store, "S1"), amount(balance)) << name;
        EXPECT_EQ(CustomerBalance(store, "C1"), amount(balance)) << name;
    }
}

TEST_F(BalancesTest, ALineWithoutADocumentCountsButOnNoDay) {
    addItems({"A"});
    write("INSERT INTO tblPurchaseDetails (Reference, ItemID, Delivered) VALUES ('gone', 'A', 10000)");
    EXPECT_EQ(ItemBalance(store, "A"), amount(1));
    EXPECT_EQ(ItemBalanceBetween(store, "A", day(100)), amount(0));
}

TEST_F(BalancesTest, StoringTellsAMissingKeyAndUpdatingDoesNot) {
    const struct {
        void (*store)(Connection&, const QString&, Boxes&);
        void (*update)(Connection&, const QString&, Boxes&);
        const char* text;
    } cases[] = {
        {StoreSalesBalance, UpdateSalesBalance, "Book Balance could not be Updated! Book Not Found!"},
        {StorePurchaseBalance, UpdatePurchaseBalance, "Book Balance could not be Updated! Book Not Found!"},
        {StoreItemBalance, UpdateItemBalance, "Inventory Balance could not be Updated! Item Not Found!"},
    };
    for (const auto& routines : cases) {
        Boxes boxes;
        routines.update(store, "none", boxes);
        EXPECT_EQ(boxes, Boxes());
        routines.store(store, "none", boxes);
        EXPECT_EQ(boxes, Boxes{exclamation("Error!", routines.text)});
    }
}

TEST_F(BalancesTest, AnOverflowStopsNoOtherKey) {
    for (const char* refNo : {"S1", "S2", "S3", "S4"}) {
        addSaleOf(refNo, amount(100));
        addReceiptLine(refNo, bound(amount(30)), bound(amount(0)));
    }
    addReceiptLine("S2", bound(most), bound(amount(0)));
    addReceiptLine("S3", bound(most - amount(30)), bound(amount(30)));
    EXPECT_EQ(SalesBalance(store, "S2"), amount(100)) << "a sum that fails counts 0";
    EXPECT_EQ(SalesBalance(store, "S3"), amount(100)) << "and so does the sum of both";
    RecomputeReceivableBalances(store, Progress::none());
    EXPECT_EQ(column("SELECT Balance AS v FROM tblSalesMaster ORDER BY RefNo"),
              "700000 1000000 1000000 700000");
}

// The keys of masters and payments are walked side by side: whatever their letters, none is missed.
TEST_F(BalancesTest, PaymentsFindTheirSaleInAnyCaseAndOrder) {
    const QStringList keys{"",  " ", "-1", "A",  "a-1", "A_1", "AZ",  "B",
                           "Z", "[", "_",  "z1", "Ñ",   "ñ",   "日本"};
    for (const QString& key : keys) {
        addSaleOf(key, amount(100));
        addReceiptLine(key.toUpper().replace("Ñ", key.contains("ñ") ? "ñ" : "Ñ"), bound(amount(1)),
                       bound(amount(2)));
        addReceiptLine(key + "~", bound(amount(5)), bound(amount(5)));
    }
    write("INSERT INTO tblReceiptDetails (ZevRef, Amount, DiscountAmount) VALUES (9000, 70000, 70000)");
    RecomputeReceivableBalances(store, Progress::none());
    EXPECT_EQ(column("SELECT Balance AS v FROM tblSalesMaster"),
              QStringList(keys.size(), "970000").join(u' '));
}

TEST_F(BalancesTest, RecomputingWritesOnlyWhatChanged) {
    for (const char* refNo : {"S1", "S2", "S3"}) addSaleOf(refNo, amount(100));
    addSaleOf("S4", amount(0));
    write("UPDATE tblSalesMaster SET Balance = NULL WHERE RefNo = 'S4'");
    RecomputeReceivableBalances(store, Progress::none());
    EXPECT_EQ(column("SELECT Balance AS v FROM tblSalesMaster ORDER BY RefNo"), "1000000 1000000 1000000 0");
    int writes = 0;
    Connection::setStatementHook([&](const QString& text) { writes += text.startsWith("UPDATE"); });
    RecomputeReceivableBalances(store, Progress::none());
    EXPECT_EQ(writes, 0);
    addReceiptLine("S2", bound(amount(1)), bound(amount(0)));
    writes = 0;
    RecomputeReceivableBalances(store, Progress::none());
    Connection::setStatementHook({});
    EXPECT_EQ(writes, 1);
    EXPECT_EQ(column("SELECT Balance FROM tblSalesMaster WHERE RefNo = 'S2'"), "990000");
}
