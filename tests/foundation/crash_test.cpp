#include "foundation/shared_routines.h"
#include "platform/store/transaction.h"
#include "support/crash_runner.h"
#include "support/test_server.h"
#include "support/test_store.h"

// A store that is full enough to be written in the middle of a unit of work.
class Crash : public SessionTest {
  protected:
    void SetUp() override {
        SessionTest::SetUp();
        std::vector<QVariantList> rows;
        for (int i = 0; i < 3000; ++i) rows.push_back({QString::number(i), QString(200, u'x')});
        store().runMany("INSERT INTO tblItemMaster (ItemCode, Remarks) VALUES (?, ?)", rows);
        store().close();
    }
};

static void changeEverything(Connection& store) {
    if (!onTestServer())
        store.run("PRAGMA cache_size = 10");  // changed pages reach the file before the commit
    Transaction unit(store);
    store.run("UPDATE tblItemMaster SET Remarks = 'changed'");
    store.run("DELETE FROM tblUnitMaster");
    store.run("INSERT INTO tblUnitMaster (UnitCode) VALUES ('NEW')");
    unit.commit();
}

TEST_F(Crash, AUnitOfWorkIsThereWholeOrNotAtAll) {
    int before = 0;
    const int statements =
        crashAtEveryStatement(changeEverything, [&before](Connection& store, const CrashPoint& point) {
            const bool changed = RecordFound(store, "tblUnitMaster", "UnitCode", "NEW");
            EXPECT_EQ(changed, point.acknowledged);
            EXPECT_EQ(CountRecords(store, "tblUnitMaster"), changed ? 1 : 8);
            EXPECT_EQ(valueOf(store, "SELECT COUNT(*) FROM tblItemMaster WHERE Remarks = 'changed'"),
                      changed ? "3000" : "0");
            if (!changed) ++before;
        });
    EXPECT_EQ(statements, 4) << "three statements and the commit";
    EXPECT_EQ(before, 4);
}

TEST_F(Crash, SeparateStatementsShowThatTheToolFindsAHalfDoneSave) {
    int halves = 0;
    crashAtEveryStatement(
        [](Connection& store) {
            store.run("DELETE FROM tblUnitMaster");
            store.run("INSERT INTO tblUnitMaster (UnitCode) VALUES ('NEW')");
        },
        [&halves](Connection& store, const CrashPoint&) {
            if (CountRecords(store, "tblUnitMaster") == 0) ++halves;
        });
    EXPECT_EQ(halves, 1);
}
