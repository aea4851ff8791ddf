#include "books/posting_queue.h"
#include "books_test.h"
#include "foundation/store_place.h"
#include "support/crash_runner.h"

#include <gtest/gtest.h>

namespace {
void endTheDay(Connection& store) { EXPECT_EQ(runEndOfDay(store), Boxes()); }

QStringList ledger(Connection& store) {
    return rowsOf(
        store,
        "SELECT BookID || ' ' || Reference || ' ' || ItemCode || ' ' || StockIn || ' ' || InPrice || ' '"
        " || StockOut || ' ' || OutPrice || ' ' || Balance || ' ' || SalesCost FROM tblStockValuation"
        " ORDER BY ItemCode, TransDate, BookID, Reference");
}

QStringList costPrices(Connection& store) {
    return rowsOf(store, "SELECT ItemCode || ' ' || CostPrice FROM tblItemMaster ORDER BY ItemCode");
}

// A document stands in the queue or in the ledger with every line, never in both and never in neither.
QStringList documentsInNeitherPlace(Connection& store) {
    return rowsOf(
        store,
        "SELECT d.BookID || ' ' || d.Reference FROM"
        " (SELECT 'P' AS BookID, PurchaseNo AS Reference, (SELECT COUNT(*) FROM tblPurchaseDetails l"
        " WHERE l.Reference = PurchaseNo) AS Lines FROM tblPurchaseMaster UNION ALL"
        " SELECT 'S', RefNo, (SELECT COUNT(*) FROM tblSalesDetails l WHERE l.Reference = RefNo)"
        " FROM tblSalesMaster) d WHERE (SELECT COUNT(*) FROM tblStockValuation v WHERE"
        " v.BookID = d.BookID AND v.Reference = d.Reference) <> CASE WHEN EXISTS (SELECT 1 FROM"
        " tblForPosting q WHERE q.BookID = d.BookID AND q.Reference = d.Reference) THEN 0"
        " ELSE d.Lines END");
}

class EndOfDayCrash : public SessionTest {
  protected:
    void SetUp() override {
        SessionTest::SetUp();
        addContact(store(), {"C1", "Reyes Trading"});
        addItem(store(), {"I1", "Goods I1"});
        addItem(store(), {"I2", "Goods I2"});
        addPurchase(
            store(),
            {"P1", {2026, 3, 1}, "C1", {{"I1", amount(10), amount(5)}, {"I2", amount(3), amount(7)}}});
        addPurchase(store(), {"P2", {2026, 3, 2}, "C1", {{"I1", amount(10), amount(6)}}});
        addSale(store(),
                {"S1", {2026, 3, 3}, "C1", {{"I1", amount(12), amount(9)}, {"I2", amount(1), amount(9)}}});
    }
};

TEST_F(EndOfDayCrash, KilledAnywhereASecondRunCompletesIt) {
    const QString place = storePlace();
    const QTemporaryDir folder;
    store().close();
    const QString whole = copyOfStore(place, folder.path());
    store().open(whole, passwordFor(whole));
    endTheDay(store());
    const QStringList expectedLedger = ledger(store());
    const QStringList expectedCosts = costPrices(store());
    ASSERT_EQ(expectedLedger.size(), 5);
    store().close();

    const int statements = crashAtEveryStatement(endTheDay, [&](Connection& left, const CrashPoint& point) {
        EXPECT_EQ(documentsInNeitherPlace(left), QStringList());
        EXPECT_EQ(HasPendingPosting(left), !point.acknowledged);
        endTheDay(left);
        EXPECT_FALSE(HasPendingPosting(left));
        EXPECT_EQ(ledger(left), expectedLedger);
        EXPECT_EQ(costPrices(left), expectedCosts);
    });
    EXPECT_GT(statements, 20);
    store().open(place, passwordFor(place));
}
}  // namespace
