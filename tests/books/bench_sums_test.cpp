// What the benchmarks compare must be equal: the bare loops give the same books as the program's passes.
#include "bench/bare_passes.h"
#include "bench/books_generator.h"
#include "books/balances.h"
#include "books/books_test.h"
#include "books/stock_valuation.h"

class BenchSumsTest : public testing::Test {
  protected:
    using Pass = std::function<void(Connection&)>;
    static void expectEqual(const Pass& prepare, const Pass& bare, const Pass& own,
                            const QStringList& queries) {
        TestStore bareBooks;
        TestStore ownBooks;
        for (TestStore* books : {&bareBooks, &ownBooks}) {
            generateBooks(books->connection(), 400);
            prepare(books->connection());
        }
        bare(bareBooks.connection());
        own(ownBooks.connection());
        for (const QString& query : queries) {
            const QStringList rows = rowsOf(ownBooks.connection(), query);
            EXPECT_GT(QSet<QString>(rows.begin(), rows.end()).size(), 5) << qPrintable(query);
            EXPECT_EQ(rows, rowsOf(bareBooks.connection(), query)) << qPrintable(query);
        }
    }
};

static const QString ledgerRows =
    "SELECT ZevRef || ' ' || BookID || Reference || ' ' || Contact || ItemCode || TransDate || ' ' || "
    "StockIn || ' ' || "
    "InPrice || ' ' || StockOut || ' ' || OutPrice || ' ' || Balance || ' ' || SalesCost FROM "
    "tblStockValuation ORDER "
    "BY ZevRef";

static void revalue(Connection& store) { RecomputeStockValuation(store, Progress::none()); }

TEST_F(BenchSumsTest, Revaluation) {
    expectEqual([](Connection&) {}, [](Connection& store) { bareRevaluation(store.handle()); }, revalue,
                {ledgerRows});
}

TEST_F(BenchSumsTest, Balances) {
    expectEqual([](Connection&) {}, [](Connection& store) { bareBalances(store.handle()); },
                [](Connection& store) {
                    RecomputeInventoryBalances(store, Progress::none());
                    RecomputePayableBalances(store, Progress::none());
                    RecomputeReceivableBalances(store, Progress::none());
                },
                {"SELECT Balance FROM tblSalesMaster ORDER BY RefNo",
                 "SELECT Balance FROM tblPurchaseMaster ORDER BY PurchaseNo",
                 "SELECT Balance FROM tblItemMaster ORDER BY ItemCode"});
}

TEST_F(BenchSumsTest, EndOfDay) {
    expectEqual(
        [](Connection& store) {
            revalue(store);
            queueOnePercent(store);
        },
        [](Connection& store) { bareEndOfDay(store.handle()); },
        [](Connection& store) { EXPECT_EQ(runEndOfDay(store), Boxes()); },
        {ledgerRows, "SELECT ItemCode || CostPrice FROM tblItemMaster ORDER BY ItemCode"});
}
