#include "demo/firm_figures.h"
#include "demo/played_firm.h"
#include "foundation/new_store.h"
#include "foundation/start.h"
#include "journeys/journey.h"
#include "platform/clock.h"
#include "support/files.h"
#include "support/test_server.h"

namespace {
struct PlayedDay {
    FirmFigures before, after;
    QStringList saved;
    QList<TableFingerprint> books;
};

// The day that ./run plays without a display.
class DayJourney : public Journey {
  protected:
    static void newFirmIn(const QString& folder) {
        closeProgram();
        onDay(2);
        freshDemoFirm(QDir(folder));
    }
    PlayedDay dayIn(const QString& folder) {
        closeProgram();
        setProgramFolder(folder);
        const QDate today = onDay(2);
        EXPECT_TRUE(Main());
        PlayedDay day{.before = firmFigures(store(), today), .after = {}, .saved = {}, .books = {}};
        day.saved = play(QString::fromUtf8(contentOf(ZEVRIN_SOURCE_DIR "/demo/day.txt")));
        day.after = firmFigures(store(), today);
        day.books = fingerprintOf(store());
        return day;
    }
};

void expectSame(const QList<TableFingerprint>& books, const QList<TableFingerprint>& others) {
    EXPECT_GT(books.size(), 15);
    ASSERT_EQ(books.size(), others.size());
    for (qsizetype i = 0; i < books.size(); ++i)
        EXPECT_EQ(books[i], others[i]) << qPrintable(books[i].table) << books[i].rows << " and "
                                       << qPrintable(others[i].table) << others[i].rows << " rows";
}
}  // namespace

// On a server the same day once more, which ends with the same rows, which stay the same on the way to a
// server and back.
TEST_F(DayJourney, OfTheDemoFirm) {
    const QTemporaryDir folder, desk;
    const QString file = folder.filePath(storeFileName);
    newFirmIn(folder.path());
    if (onTestServer()) writeFile(desk.filePath("Store.ini"), newEmptyDatabase().toUtf8());
    if (onTestServer()) copyStore(file, QString::fromUtf8(contentOf(desk.filePath("Store.ini"))));
    const auto [before, after, saved, books] = dayIn(folder.path());
    EXPECT_EQ(saved.size(), 11);
    EXPECT_EQ(after.waiting, 0);
    EXPECT_GT(after.receivable, before.receivable);
    EXPECT_GT(after.payable, before.payable);
    EXPECT_GT(after.costOfSales, Currency());
    EXPECT_LT(after.costOfSales, after.salesOfDay);
    if (!onTestServer()) return;
    const PlayedDay there = dayIn(desk.path());
    EXPECT_EQ(figuresTable(there.before, there.after), figuresTable(before, after));
    expectSame(there.books, books);
    closeProgram();
    const QString moved = newEmptyDatabase();
    expectSame(copyStore(file, moved), books);
    expectSame(copyStore(moved, folder.filePath("back.mdb")), books);
}
