#include "books/balances.h"
#include "books/books_test.h"
#include "books/stock_valuation.h"
#include "foundation/store_place.h"
#include "platform/store/transaction.h"

#include <QThread>

#include <atomic>
#include <thread>

// A pass that takes long lets other workstations in: it ends in many units, whose work is all there at the
// end.
class LongPassTest : public BooksTest {
  protected:
    static constexpr int count = 400;

    void SetUp() override {
        BooksTest::SetUp();
        Transaction unit(store);
        for (int at = 0; at < count; ++at) {
            const QString key = QString("K%1").arg(at);
            addItem(store, {key, key});
            AddStockValuation(store, "P", key, "C1", key, day(1), amount(at), amount(1));
            write("INSERT INTO tblPurchaseDetails (ItemID, Delivered) VALUES (?, ?)",
                  {key, bound(amount(at))});
        }
        unit.commit();
    }
    void TearDown() override { Connection::setStatementHook({}); }

    // Slows every update down to a millisecond and counts the units.
    int unitsOf(const std::function<void()>& pass) {
        int units = 0;
        Connection::setStatementHook([&](const QString& text) {
            if (text.startsWith("UPDATE")) QThread::msleep(1);
            units += text == "COMMIT";
        });
        pass();
        Connection::setStatementHook({});
        return units;
    }
    // Whether each key's figure is its number: K0 has 0, K1 has 1.
    int wrongRows(const QString& table) {
        return column("SELECT COUNT(*) FROM " + table +
                      " WHERE Balance <> 10000 * CAST(SUBSTR(ItemCode, 2) AS INTEGER)")
            .toInt();
    }
};

TEST_F(LongPassTest, EndsInManyUnits) {
    EXPECT_GE(unitsOf([this] { RecomputeInventoryBalances(store, Progress::none()); }), 3);
    EXPECT_EQ(wrongRows("tblItemMaster"), 0);
    EXPECT_GE(unitsOf([this] { RecomputeStockValuation(store, Progress::none()); }), 3);
    EXPECT_EQ(wrongRows("tblStockValuation"), 0);
}

TEST_F(LongPassTest, ASecondRunCompletesWhatAnInterruptedOneLeft) {
    int updates = 0;
    Connection::setStatementHook([&](const QString& text) {
        if (!text.startsWith("UPDATE")) return;
        QThread::msleep(1);
        if (++updates > count / 2) throw StoreError(StoreError::busy, "interrupted");
    });
    EXPECT_THROW(RecomputeStockValuation(store, Progress::none()), StoreError);
    Connection::setStatementHook({});
    const int left = wrongRows("tblStockValuation");
    EXPECT_GE(left, count / 2 - 1);
    EXPECT_LT(left, count - 1) << "the units before stay done";
    RecomputeStockValuation(store, Progress::none());
    EXPECT_EQ(wrongRows("tblStockValuation"), 0);
}

TEST_F(LongPassTest, AnItemThatAnotherWorkstationTouchesMeanwhileIsCostedAnew) {
    std::atomic<int> updates = 0;
    Connection::setStatementHook([&](const QString& text) {
        if (!text.startsWith("UPDATE tblStockValuation")) return;
        QThread::msleep(3);
        ++updates;
    });
    std::thread other([&] {
        Connection theirs;
        theirs.open(store.path(), passwordFor(store.path()));
        while (updates == 0) QThread::msleep(1);
        Transaction unit(theirs);
        AddStockValuation(theirs, "S", "new", "C1", "k5", day(2), amount(2), amount(1));
        AddStockValuation(theirs, "P", "earlier", "C1", "K399", day(0), amount(1), amount(1));
        RemoveStockValuation(theirs, "P", "K300");
        unit.commit();
        EXPECT_LT(updates, count) << "the pass had ended already";
    });
    RecomputeStockValuation(store, Progress::none());
    other.join();
    EXPECT_EQ(column("SELECT Balance AS v FROM tblStockValuation WHERE ItemCode = 'K5' ORDER BY TransDate"),
              "50000 30000");
    EXPECT_EQ(column("SELECT Balance AS v FROM tblStockValuation WHERE ItemCode = 'K399' ORDER BY TransDate"),
              "10000 4000000");
    updates = 0;
    RecomputeStockValuation(store, Progress::none());
    EXPECT_EQ(updates, 0);
    EXPECT_EQ(
        column("SELECT COUNT(*) AS v FROM StockPass") + column("SELECT COUNT(*) AS v FROM StockTouched"),
        "00");
}
