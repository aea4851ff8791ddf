#include "platform/store/store_care.h"

#include "platform/clock.h"
#include "platform/store/connection.h"
#include "platform/store/schema_steps.h"
#include "platform/store/transaction.h"
#include "support/files.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <csignal>

namespace {
constexpr const char* word = "open sesame";

class StoreCareTest : public ::testing::Test {
  protected:
    void SetUp() override {
        setSchemaSteps(
            {{"goods", {"CREATE TABLE tblGood (Code TEXT)", "CREATE INDEX ByCode ON tblGood (Code)"}}});
        store.create(path(), word);
        applySchemaSteps(store);
        for (int row = 0; row < 500; ++row) add(QString("goods of number %1").arg(row));
        reopen();
    }
    void TearDown() override { Clock::unfreeze(); }

    QString path() const { return folder_.filePath("goods.mdb"); }
    void add(const QString& code) { store.run({"INSERT INTO tblGood VALUES (?)", {code}}); }
    void reopen() {
        store.close();
        store.open(path(), word);
    }
    QStringList copies() const { return QDir(folder_.filePath(backupFolder)).entryList(QDir::Files); }
    QString failure(const std::function<void()>& action) {
        try {
            action();
        } catch (const StoreError& error) {
            return error.text();
        }
        return "none";
    }
    QString failureOfASave() {
        return failure([this] {
            Transaction unit(store);
            for (int row = 0; row < 50; ++row) add(QString(5000, u'x'));
            unit.commit();
        });
    }
    void leaveOpen() { writeFile(path() + "-open-dead", ""); }

    QTemporaryDir folder_;
    Connection store;
};
}  // namespace

TEST_F(StoreCareTest, AStoreThatWasLeftOpenIsToldUntilItIsFoundSound) {
    EXPECT_FALSE(store.wasLeftOpen());
    leaveOpen();
    EXPECT_FALSE(store.wasLeftOpen()) << "it is the next to open it that is told";
    Connection other;
    other.open(path(), word);
    EXPECT_TRUE(other.wasLeftOpen());
    other.close();
    reopen();
    EXPECT_TRUE(store.wasLeftOpen()) << "a connection that looked away settles nothing";
    checkStore(store, Progress::none());
    EXPECT_FALSE(store.wasLeftOpen());
    reopen();
    EXPECT_FALSE(store.wasLeftOpen());
    store.close();
    EXPECT_EQ(QDir(folder_.path()).entryList({"*-open-*"}), QStringList());
}

TEST_F(StoreCareTest, DamageIsFoundAndStaysToBeFound) {
    store.close();
    QByteArray bytes = contentOf(path());
    bytes.replace(bytes.size() - 4096, 4096, QByteArray(4096, 'z'));
    writeFile(path(), bytes);
    leaveOpen();
    for (int time = 0; time < 2; ++time) {
        reopen();
        ASSERT_TRUE(store.wasLeftOpen());
        EXPECT_TRUE(failure([this] { checkStore(store, Progress::none()); }).contains("is damaged"));
    }
    EXPECT_TRUE(failure([this] { backUpStore(store, Progress::none()); }).contains("could not be made"));
    EXPECT_EQ(copies(), QStringList());
}

TEST_F(StoreCareTest, TheLastSevenCopiesAreKept) {
    Transaction unfinished(store);
    add("not yet saved");
    for (int day = 1; day <= 9; ++day) {
        Clock::freeze(QDateTime(QDate(2026, 1, day), QTime(17, 45)));
        backUpStore(store, Progress::none());
    }
    EXPECT_EQ(copies().size(), 7);
    EXPECT_EQ(copies().first(), "goods-20260103-174500.mdb");
    Connection copy;
    copy.open(folder_.filePath(backupFolder) + u'/' + copies().last(), word);
    EXPECT_EQ(copy.execute("SELECT COUNT(*) AS Ihap FROM tblGood").integer("Ihap"), 500);
}

TEST_F(StoreCareTest, ACopyThatFailsChangesNothing) {
    writeFile(folder_.filePath(backupFolder), "in the way");
    EXPECT_TRUE(failure([this] { backUpStore(store, Progress::none()); }).contains("cannot be made"));
    EXPECT_EQ(failureOfASave(), "none");
}

TEST_F(StoreCareTest, WhatFailsIsSaidInWordsForAPerson) {
    store.run("PRAGMA max_page_count = 1");
    EXPECT_TRUE(failureOfASave().startsWith("The disk of the store is full."));
    store.run("PRAGMA max_page_count = 1000000");

    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const auto formerHandler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit failing{static_cast<rlim_t>(QFileInfo(path()).size()), before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &failing);
    const QString failed = failureOfASave();
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, formerHandler);
    EXPECT_TRUE(failed.startsWith("The disk of the store fails.")) << qPrintable(failed);

    const Recordset none = store.execute("SELECT Code FROM tblGood WHERE Code = 'gone'");
    EXPECT_TRUE(failure([&] { none.text("Code"); }).startsWith("This record is no longer there."));

    ASSERT_TRUE(QFile::rename(path(), path() + ".away"));
    const QString moved = failureOfASave();
    EXPECT_TRUE(moved.startsWith("The store has been moved")) << qPrintable(moved);
}
