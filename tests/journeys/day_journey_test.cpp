#include "demo/firm_figures.h"
#include "demo/played_firm.h"
#include "foundation/start.h"
#include "journeys/journey.h"
#include "platform/clock.h"
#include "support/files.h"
#include "support/test_server.h"

// The day that ./run plays without a display.
TEST_F(Journey, TheDayOfTheDemoFirm) {
    const QTemporaryDir folder;
    closeProgram();
    if (onTestServer()) writeFile(folder.filePath("Store.ini"), newEmptyDatabase().toUtf8());
    freshDemoFirm(QDir(folder.path()));
    ASSERT_TRUE(Main());
    const FirmFigures before = firmFigures(store(), Clock::today());
    const QStringList saved = play(QString::fromUtf8(contentOf(ZEVRIN_SOURCE_DIR "/demo/day.txt")));
    EXPECT_EQ(saved.size(), 11);
    const FirmFigures after = firmFigures(store(), Clock::today());
    EXPECT_EQ(after.waiting, 0);
    EXPECT_GT(after.receivable, before.receivable);
    EXPECT_GT(after.payable, before.payable);
    EXPECT_GT(after.costOfSales, Currency());
    EXPECT_LT(after.costOfSales, after.salesOfDay);
}
