// What the benchmarks compare must be equal: the bare loops give the same books as the program's passes.
#include "bench/bare_passes.h"
#include "bench/books_generator.h"
#include "books/balances.h"
#include "books/books_test.h"
#include "books/stock_valuation.h"
#include "support/test_server.h"

using Pass = std::function<void(Connection&)>;

static void revalue(Connection& store) { RecomputeStockValuation(store, Progress::none()); }

TEST(BenchSums, BothWaysGiveTheSameBooks) {
    SKIP_ON_SERVER();
    const QString ledger =
        "SELECT ZevRef || ' ' || BookID || Reference || ' ' || Contact || ItemCode || TransDate || ' ' || "
        "StockIn || ' ' || InPrice || ' ' || StockOut || ' ' || OutPrice || ' ' || Balance || ' ' || "
        "SalesCost FROM tblStockValuation ORDER BY ZevRef";
    const struct {
        Pass prepare, bare, own;
        QStringList queries;
    } passes[] = {
        {[](Connection&) {}, [](Connection& store) { bareRevaluation(store.handle()); }, revalue, {ledger}},
        {[](Connection&) {},
         [](Connection& store) { bareBalances(store.handle()); },
         [](Connection& store) {
             RecomputeInventoryBalances(store, Progress::none());
             RecomputePayableBalances(store, Progress::none());
             RecomputeReceivableBalances(store, Progress::none());
         },
         {"SELECT Balance FROM tblSalesMaster ORDER BY RefNo",
          "SELECT Balance FROM tblPurchaseMaster ORDER BY PurchaseNo",
          "SELECT Balance FROM tblItemMaster ORDER BY ItemCode"}},
        {[](Connection& store) {
             revalue(store);
             queueOnePercent(store);
         },
         [](Connection& store) { bareEndOfDay(store.handle()); },
         [](Connection& store) { EXPECT_EQ(runEndOfDay(store), Boxes()); },
         {ledger, "SELECT ItemCode || CostPrice FROM tblItemMaster ORDER BY ItemCode"}}};
    for (const auto& pass : passes) {
        TestStore bareBooks, ownBooks;
        for (TestStore* books : {&bareBooks, &ownBooks}) {
            generateBooks(books->connection(), 400);
            pass.prepare(books->connection());
        }
        pass.bare(bareBooks.connection());
        pass.own(ownBooks.connection());
        for (const QString& query : pass.queries) {
            const QStringList rows = rowsOf(ownBooks.connection(), query);
            EXPECT_GT(QSet<QString>(rows.begin(), rows.end()).size(), 5) << qPrintable(query);
            EXPECT_EQ(rows, rowsOf(bareBooks.connection(), query)) << qPrintable(query);
        }
    }
}
