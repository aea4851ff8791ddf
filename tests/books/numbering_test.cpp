#include "books/numbering.h"

#include "books/books_test.h"

using namespace numbering;

class NumberingTest : public BooksTest {};

TEST_F(NumberingTest, SerialFollowsWhateverTheCounterHolds) {
    const std::pair<const char*, const char*> cases[] = {
        {"1001", "1002"},         {"5000", "5001"}, {" 7 ", "8"}, {"0099", "100"},
        {"1,500", "1501"},        {"", "0"},        {"abc", "0"}, {"9999999999", "10000000000"},
        {"922337203685477", "0"},
    };
    EXPECT_EQ(NextSalesSerial(store), "1001");
    for (const auto& [stored, next] : cases) {
        StoreSalesSerial(store, stored);
        EXPECT_EQ(NextSalesSerial(store), next) << stored;
        EXPECT_EQ(NextSalesSerial(store), next) << "looking takes nothing";
    }
    EXPECT_EQ(column("SELECT Server AS v FROM tblSalesKey"), cases[std::size(cases) - 1].first);
    EXPECT_EQ(NextPurchaseSerial(store), "1001");
}

TEST_F(NumberingTest, EveryReadTakesAKey) {
    const struct {
        RowKey key;
        qint64 first;
    } cases[] = {{payment, 1}, {receipt, 1}, {check, 1000000001}, {stock, 1}};
    for (const auto& [key, first] : cases) {
        EXPECT_EQ(lastKey(store, key), first) << key.table;
        EXPECT_EQ(nextKey(store, key), first) << key.table;
        EXPECT_EQ(nextKey(store, key), first + 1) << key.table;
        EXPECT_EQ(takeKeys(store, key, 10), first + 2) << key.table;
        EXPECT_EQ(nextKey(store, key), first + 12) << key.table;
    }
}

TEST_F(NumberingTest, AnEmptiedCounterGoesOnFromTheTable) {
    write("INSERT INTO tblReceiptMaster (PayNo) VALUES (41)");
    EXPECT_EQ(nextKey(store, payment), 42);
    EXPECT_EQ(nextKey(store, payment), 43);
    write("DELETE FROM tblReceiptKey");
    EXPECT_EQ(nextKey(store, payment), 42);
}

TEST_F(NumberingTest, AResetSkipsOneNumber) {
    ResetStockKey(store);
    EXPECT_EQ(NextStockKey(store), 2);
    write("INSERT INTO tblStockValuation (ZevRef, BookID) VALUES (500, 'P')");
    ResetStockKey(store);
    EXPECT_EQ(column("SELECT Server AS v FROM tblStockKey"), "501");
    EXPECT_EQ(NextStockKey(store), 502);
}

TEST_F(NumberingTest, ErrorsGiveZeroAndLeaveTheCounter) {
    write("INSERT INTO tblStockKey (Server) VALUES ('x')");
    EXPECT_EQ(NextStockKey(store), 0);
    EXPECT_EQ(column("SELECT Server AS v FROM tblStockKey"), "x");
    for (const char* table : {"tblSalesKey", "tblStockKey", "tblStockValuation"})
        write(QString("DROP TABLE %1").arg(table));
    EXPECT_EQ(NextSalesSerial(store), "0");
    EXPECT_EQ(NextStockKey(store), 0);
    EXPECT_EQ(LastStockKey(store), 0);
    EXPECT_NO_THROW(StoreSalesSerial(store, "5"));
    EXPECT_NO_THROW(ResetStockKey(store));
}
