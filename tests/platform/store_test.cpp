#include "platform/store/bulk.h"
#include "platform/store/dialect.h"
#include "platform/store/engine.h"
#include "platform/store/schema_steps.h"
#include "platform/store/server_dialect.h"
#include "platform/store/transaction.h"
#include "support/files.h"
#include "support/test_server.h"

#include <QElapsedTimer>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <unistd.h>

namespace {
constexpr const char* word = "open sesame";

const std::vector<SchemaStep> goodsSchema{
    {"goods",
     {"CREATE TABLE tblGood (Code TEXT COLLATE NOCASE UNIQUE NOT NULL, Name TEXT COLLATE NOCASE, "
      "Price CURRENCY_INTEGER NOT NULL DEFAULT 0, Sold BOOLEAN NOT NULL DEFAULT 0, Since DATE, Pieces "
      "INTEGER, RowNo INTEGER NOT NULL PRIMARY KEY)"}},
    {"a second table", {"CREATE TABLE tblLine (Good TEXT COLLATE NOCASE, Served CURRENCY_INTEGER)"}}};

// A folder with a store of two small tables, open at two workstations.
class StoreTest : public ::testing::Test {
  protected:
    void SetUp() override {
        setSchemaSteps(goodsSchema);
        place_ = onTestServer() ? newEmptyDatabase() : path();
        Connection maker;
        maker.create(place_, password());
        applySchemaSteps(maker);
        maker.close();
        store.open(place_, password());
        theirs.open(place_, password());
    }
    void TearDown() override {
        Connection::setIdleHook({});
        Connection::setStatementHook({});
    }

    static QString password() { return onTestServer() ? QString() : QString(word); }
    QString path(const QString& name = "goods.mdb") const { return folder_.filePath(name); }
    static void add(Connection& to, const QString& code, const QVariant& name = {}) {
        to.run({"INSERT INTO tblGood (Code, Name) VALUES (?, ?)", {code, name}});
    }
    static qint64 count(Connection& in, const Sql& where = "") {
        return in.execute(Sql("SELECT COUNT(*) AS Ihap FROM tblGood ") + where).integer("Ihap");
    }

    QTemporaryDir folder_;
    QString place_;
    Connection store;
    Connection theirs;
};

int numberThrown(const std::function<void()>& action) {
    try {
        action();
    } catch (const StoreError& error) {
        EXPECT_FALSE(error.text().isEmpty());
        return error.number();
    }
    return 0;
}

// A person whom the file system can refuse: the administrator's rights are put aside meanwhile.
class OrdinaryUser {
  public:
    OrdinaryUser() { EXPECT_TRUE(!administrator_ || setresuid(65534, 65534, 0) == 0); }
    ~OrdinaryUser() { EXPECT_TRUE(!administrator_ || setresuid(0, 0, 0) == 0); }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

  private:
    bool administrator_ = geteuid() == 0;
};

QString refusalOf(const QString& path, const QString& password = word) {
    Connection store;
    try {
        store.open(path, password);
    } catch (const StoreError& error) {
        EXPECT_FALSE(store.isOpen());
        return error.text();
    }
    return "opened";
}

using Permissions = QFile::Permissions;
constexpr Permissions readOnly = QFile::ReadOwner | QFile::ReadUser | QFile::ReadGroup | QFile::ReadOther;
constexpr Permissions enter = QFile::ExeOwner | QFile::ExeUser | QFile::ExeGroup | QFile::ExeOther;
constexpr Permissions everything =
    readOnly | enter | QFile::WriteOwner | QFile::WriteUser | QFile::WriteGroup | QFile::WriteOther;
}  // namespace

TEST_F(StoreTest, WhatIsNoSoundStoreIsRefusedAndLeftAsItIs) {
    SKIP_ON_SERVER();
    QByteArray otherProgram = contentOf(path());
    otherProgram[68] = 'X';  // the mark in the header
    QByteArray newer = contentOf(path());
    newer[63] = 9;  // the version in the header
    QByteArray negative = contentOf(path());
    negative[60] = '\xff';
    const struct {
        const char* name;
        QByteArray bytes;
        const char* password;
        const char* reason;
    } faults[] = {{"empty", "", word, "empty"},
                  {"garbage", QByteArray(5000, 'z'), word, "damaged"},
                  {"short garbage", "zz", word, "damaged"},
                  {"truncated", contentOf(path()).left(4096), word, "damaged"},
                  {"other program", otherProgram, word, "not a store of this program"},
                  {"newer", newer, word, "newer version"},
                  {"before the first", negative, word, "damaged"},
                  {"wrong password", contentOf(path()), "open Sesame", "not a valid password"},
                  {"no password", contentOf(path()), "", "not a valid password"}};
    for (const auto& fault : faults) {
        SCOPED_TRACE(fault.name);
        const QString file = path("fault.mdb");
        writeFile(file, fault.bytes);
        const QString refusal = refusalOf(file, fault.password);
        EXPECT_TRUE(refusal.contains(fault.reason)) << qPrintable(refusal);
        EXPECT_EQ(contentOf(file), fault.bytes);
    }
    EXPECT_TRUE(refusalOf(path("none.mdb")).contains("not there"));
    EXPECT_FALSE(QFileInfo::exists(path("none.mdb")));
    EXPECT_EQ(refusalOf(path()), "opened");
}

TEST_F(StoreTest, AReadOnlyFileOrFolderIsRefused) {
    SKIP_ON_SERVER();
    QFile::setPermissions(path(), readOnly);
    QFile::setPermissions(folder_.path(), everything);
    const QByteArray before = contentOf(path());
    {
        const OrdinaryUser user;
        EXPECT_TRUE(refusalOf(path()).contains("file is read-only"));
    }
    QFile::setPermissions(path(), everything);
    QFile::setPermissions(folder_.path(), readOnly | enter);
    {
        const OrdinaryUser user;
        EXPECT_TRUE(refusalOf(path()).contains("folder is read-only"));
    }
    QFile::setPermissions(folder_.path(), everything);
    EXPECT_EQ(contentOf(path()), before);
    EXPECT_EQ(refusalOf(path()), "opened");
}

TEST_F(StoreTest, WhatBecomesOfAnOpenFileIsToldInWords) {
    SKIP_ON_SERVER();
    const QString away = path("away.mdb");
    const auto move = [](const QString& from, const QString& to) {
        return [=] { EXPECT_TRUE(QFile::rename(from, to)) << qPrintable(from); };
    };
    const auto allow = [this](Permissions permissions) {
        return [=, this] {
            QFile::remove(path() + "-journal");
            QFile::setPermissions(folder_.path(), permissions);
        };
    };
    const QString elsewhere = folder_.path() + "-elsewhere";
    const struct {
        std::function<void()> harm;
        std::function<void()> mend;
        const char* told;
    } cases[]{{move(path(), away), move(away, path()), "The store has been moved or renamed while"},
              {move(folder_.path(), elsewhere), move(elsewhere, folder_.path()), "has been moved or renamed"},
              {allow(readOnly | enter), allow(everything), "read-only"}};
    for (const auto& [harm, mend, told] : cases) {
        harm();
        QString text;
        try {
            const OrdinaryUser user;
            add(store, told);
        } catch (const StoreError& error) {
            text = error.text();
        }
        mend();
        EXPECT_TRUE(text.contains(told)) << qPrintable(text);
        EXPECT_EQ(count(store), 0) << told;
        EXPECT_NO_THROW(add(store, "x"));
        store.run("DELETE FROM tblGood");
    }
}

TEST_F(StoreTest, OddFolderNamesOpen) {
    SKIP_ON_SERVER();
    for (const char* name : {"50% off?", "a#b&mode=ro", "Ñ ' \" x"}) {
        QDir(folder_.path()).mkdir(name);
        const QString file = path(QString(name) + "/goods.mdb");
        ASSERT_TRUE(QFile::copy(path(), file));
        EXPECT_EQ(refusalOf(file), "opened") << name;
    }
    EXPECT_EQ(numberThrown([&] { Connection().create(path(), word); }), StoreError::general);
    EXPECT_EQ(refusalOf(path()), "opened") << "a store in the way of a new one stays whole";
}

TEST_F(StoreTest, AnOlderStoreTakesTheNewStepsWholeOrNotAtAll) {
    auto steps = goodsSchema;
    steps.push_back({"breaks", {"CREATE TABLE tblNew (A)", "CREATE TABLE tblGood (A)"}});
    setSchemaSteps(steps);
    const QString refusal = refusalOf(place_, password());
    EXPECT_TRUE(refusal.contains("already exists")) << qPrintable(refusal);
    steps.back() = {"sound", {"CREATE TABLE tblNew (A)"}};
    setSchemaSteps(steps);
    store.close();
    store.open(place_, password());
    EXPECT_EQ(store.columnTypes("tblNew").size(), 1);
    EXPECT_EQ(engineOf(store).version(), 3);
}

TEST_F(StoreTest, AUnitIsKeptWholeOrUndone) {
    if (!onTestServer()) {
        EXPECT_EQ(store.execute("PRAGMA synchronous").integer("synchronous"), 2) << "a power cut";
        EXPECT_EQ(store.execute("PRAGMA journal_mode").text("journal_mode"), "truncate");
    }
    {
        Transaction unit(store);
        add(store, "undone");
    }
    {
        Transaction unit(store);
        add(store, "kept");
        {
            Transaction step(store);
            add(store, "passed over");
        }
        {
            Transaction step(store);
            add(store, "inner");
            step.commit();
        }
        EXPECT_EQ(numberThrown([&] { add(store, "KEPT"); }), StoreError::refused);
        unit.commit();
    }
    EXPECT_FALSE(store.inTransaction());
    EXPECT_EQ(count(theirs), 2);
    EXPECT_EQ(count(theirs, {"WHERE Code = ? OR Code = ?", {"Kept", "INNER"}}), 2);
}

TEST_F(StoreTest, AFullDiskUndoesTheUnitAndSaysSo) {
    SKIP_ON_SERVER();
    store.run("PRAGMA max_page_count = 20");
    const QString big(60000, u'x');
    const auto save = [&] {
        Transaction unit(store);
        add(store, "first");
        EXPECT_EQ(numberThrown([&] {
                      add(store, "big", big);
                      add(store, "bigger", big);
                  }),
                  StoreError::general);
        add(store, "after");  // must not slip in on its own
        unit.commit();
    };
    EXPECT_EQ(numberThrown(save), StoreError::general);
    EXPECT_EQ(count(store), 0);
    store.run("PRAGMA max_page_count = 1000000");
    add(store, "big", big);
    EXPECT_EQ(count(store), 1);
}

TEST_F(StoreTest, AnotherWorkstationIsWaitedForWithTheWindowAlive) {
    auto unit = std::make_unique<Transaction>(theirs);
    add(theirs, "theirs");
    EXPECT_EQ(count(store), 0) << "reads go on beside a writer";

    int calls = 0;
    Connection::setIdleHook([&] {
        if (++calls == 3) {
            unit->commit();
            unit.reset();
        }
    });
    add(store, "mine");
    EXPECT_EQ(calls, 3);
    EXPECT_EQ(count(theirs), 2);
    EXPECT_EQ(numberThrown([&] { add(store, "THEIRS"); }), StoreError::refused);
}

TEST_F(StoreTest, TheWaitEndsAfterFiveSeconds) {
    Transaction unit(theirs);
    int calls = 0;
    Connection::setIdleHook([&] { ++calls; });
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(numberThrown([&] { Transaction refused(store); }), StoreError::busy);
    EXPECT_GE(timer.elapsed(), 4500);
    EXPECT_LE(timer.elapsed(), 20000);
    EXPECT_GT(calls, 100);
    EXPECT_FALSE(store.inTransaction());
}

TEST_F(StoreTest, ACommitThatAReaderHoldsUpIsUndone) {
    SKIP_ON_SERVER();
    add(theirs, "a");
    add(theirs, "b");
    BulkReader reader(theirs, "SELECT Code FROM tblGood");
    ASSERT_TRUE(reader.next());
    EXPECT_EQ(numberThrown([&] {
                  Transaction unit(store);
                  add(store, "c");
                  unit.commit();
              }),
              StoreError::busy);
    EXPECT_FALSE(store.inTransaction());
    while (reader.next()) continue;
    EXPECT_EQ(count(store), 2);
    add(store, "d");
}

TEST(Dialect, StatementsReadAsTheEngineNeedsThem) {
    const struct {
        const char *house, *engine;
    } table[] = {{"SELECT * FROM t WHERE a = True AND b=FALSE", "SELECT * FROM t WHERE a = -1 AND b=0"},
                 {"SELECT 'True' AS True_, \"false\", [True], TrueName FROM t",
                  "SELECT 'True' AS True_, \"false\", [True], TrueName FROM t"},
                 {"SELECT 'it''s True', t.True, True", "SELECT 'it''s True', t.True, -1"},
                 {"UPDATE t SET t.a = ?, t.b = t.c + 1 WHERE t.a = 2",
                  "UPDATE t SET a = ?, b = t.c + 1 WHERE t.a = 2"},
                 {"update t set [t].a = f(t.b, t.c), t.d=True where t.e",
                  "update t set a = f(t.b, t.c), d=-1 where t.e"},
                 {"SELECT 1 -- True\n, /* False */ False", "SELECT 1 -- True\n, /* False */ 0"},
                 {"SELECT 'unclosed True", "SELECT 'unclosed True"}};
    for (const auto& row : table) EXPECT_EQ(engineStatement(row.house), QString(row.engine));
}

TEST(Dialect, StatementsReadAsTheServerNeedsThem) {
    const struct {
        const char *house, *server;
    } table[] = {
        {"SELECT '?', a FROM t WHERE b = ? AND c = True AND d LIKE ?",
         "SELECT '?', a FROM t WHERE b = $1 AND c = -1 AND d ::text ~~@ $2"},
        {"UPDATE t SET t.a = ?, [B] = False WHERE t.c = ?", "UPDATE t SET a = $1, \"b\" = 0 WHERE t.c = $2"},
        {"SELECT SUM(a) AS S FROM (SELECT a FROM t ORDER BY a DESC, b LIMIT ?) ORDER BY 1",
         "SELECT total_of(a) AS S FROM (SELECT a FROM t ORDER BY a DESC NULLS LAST , b NULLS FIRST LIMIT $1) "
         "ORDER BY 1 NULLS FIRST"},
        {"CREATE INDEX t_ab ON t (a, b)", "CREATE INDEX t_ab ON t (a NULLS FIRST, b NULLS FIRST)"},
        {"CREATE TABLE t (a TEXT COLLATE NOCASE NOT NULL UNIQUE, b CURRENCY_INTEGER DEFAULT 0, n INTEGER NOT "
         "NULL PRIMARY KEY, PRIMARY KEY (a, b)) WITHOUT ROWID",
         "CREATE TABLE t (a citext NOT NULL, b currency_integer DEFAULT 0, n bigint NOT NULL GENERATED BY "
         "DEFAULT AS IDENTITY); CREATE UNIQUE INDEX t_a_key ON t (a NULLS FIRST); CREATE UNIQUE INDEX "
         "t_n_key ON t (n NULLS FIRST); CREATE UNIQUE INDEX t_ab_key ON t (a NULLS FIRST, b NULLS FIRST)"}};
    for (const auto& row : table)
        EXPECT_EQ(serverStatement(row.house).replace("  ", " ").replace(" ,", ","),
                  QString(row.server).replace(" ,", ","));
}

TEST_F(StoreTest, LikeFoldsLettersOfEveryScript) {
    const struct {
        const char *text, *pattern;
        bool fits;
    } table[] = {{"PIÑA COLADA", "%piña%", true},
                 {"PINA", "%piña%", false},
                 {"ЖУК", "%жук", true},
                 {"100% off", "100\\%", false},
                 {"abc", "a_c", true},
                 {"abc", "a_", false},
                 {"aXbXc", "a%b%c", true},
                 {"aab", "%ab", true},
                 {"😀x", "_x", true},
                 {"", "%", true},
                 {"abc", "", false}};
    for (const auto& row : table) {
        const Recordset answer = store.execute({"SELECT ? LIKE ? AS Fits", {row.text, row.pattern}});
        EXPECT_EQ(answer.flag("Fits"), row.fits) << row.text << " LIKE " << row.pattern;
    }
    EXPECT_TRUE(store.execute({"SELECT ? LIKE 'x' AS Fits", {QVariant()}}).isNull("Fits"));
    if (!onTestServer()) {
        EXPECT_TRUE(store.execute("SELECT '5%' LIKE '5!%' ESCAPE '!' AS Fits").flag("Fits"));
    }
    add(store, "x", "Anything");
    EXPECT_EQ(count(store, {"WHERE Name LIKE ?", {anywhere(QString())}}), 1) << "an empty search finds all";
}

TEST_F(StoreTest, HostileTextsAreStoredExactly) {
    const QStringList texts{"O'Brien",
                            "'; DROP TABLE tblGood; --",
                            "100%_\\",
                            "a\"b",
                            "<b>&amp;</b>",
                            "tab\tline\n",
                            "😀 Piña שלום",
                            "  blanks  ",
                            "True",
                            "?",
                            ":name",
                            "1.50",
                            "",
                            QString(100000, u'ñ')};
    for (qsizetype i = 0; i < texts.size(); ++i) add(store, QString::number(i), texts[i]);
    Recordset rows = store.execute("SELECT Name FROM tblGood ORDER BY RowNo");
    BulkReader bulk(store, {"SELECT Name, Since FROM tblGood WHERE Code <> ? ORDER BY RowNo", {"none"}});
    for (const QString& text : texts) {
        EXPECT_EQ(rows.text("Name"), text);
        EXPECT_EQ(count(store, {"WHERE Name = ?", {text}}), 1);
        ASSERT_TRUE(bulk.next());
        EXPECT_EQ(bulk.text(0), text);
        EXPECT_TRUE(bulk.isNull(1));
        rows.moveNext();
    }
    EXPECT_FALSE(bulk.next());
}

TEST_F(StoreTest, ValuesAreKeptInTheFormOfTheirColumn) {
    Recordset set = store.openTable("tblGood");
    set.addNew();
    set.set("Code", QString("Lamp"));
    set.set("Price", Currency::fromTenThousandths(123456));
    set.set("Sold", 1);
    set.set("Since", QDate(2024, 2, 29));
    set.set("Pieces", Currency::fromInteger(7));
    set.set("Name", QString());
    set.update();
    set.set("Price", 30);
    set.update();
    const Recordset row = store.execute("SELECT * FROM tblGood WHERE Sold = True");
    EXPECT_EQ(row.currency("PRICE"), Currency::fromInteger(30));
    EXPECT_EQ(row.text("Price") + ' ' + row.text("Pieces"), "300000 7");
    EXPECT_EQ(row.integer("Pieces"), 7);
    EXPECT_EQ(row.integer("Sold"), -1);
    const Recordset sums = store.execute("SELECT COUNT(*) AS Goods, SUM(Price) AS Worth FROM tblGood");
    EXPECT_EQ(sums.integer("Goods"), 1);
    EXPECT_EQ(sums.currency("Worth"), Currency::fromInteger(30));
    EXPECT_EQ(numberThrown([&] { sums.currency("Goods"); }), StoreError::typeMismatch);
    for (const char* number : {"Pieces", "Sold", "Name"})
        EXPECT_EQ(numberThrown([&] { row.currency(number); }), StoreError::typeMismatch) << number;
    EXPECT_EQ(numberThrown([&] { row.integer("Price"); }), StoreError::typeMismatch);
    EXPECT_EQ(numberThrown([&] { sums.integer("Worth"); }), StoreError::typeMismatch);
    EXPECT_EQ(row.date("Since"), QDate(2024, 2, 29));
    EXPECT_EQ(row.dateTime("Since"), QDateTime(QDate(2024, 2, 29), QTime(0, 0)));
    EXPECT_FALSE(row.isNull("Name"));
    EXPECT_EQ(numberThrown([&] { set.set("Price", "ten"); }), StoreError::typeMismatch);
    EXPECT_EQ(numberThrown([&] { set.set("Since", "31.02.24"); }), StoreError::typeMismatch);
    EXPECT_EQ(numberThrown([&] { set.set("Colour", 1); }), StoreError::general);
    EXPECT_EQ(numberThrown([&] { row.text("Colour"); }), StoreError::general);
}

TEST_F(StoreTest, AnUpdateWritesOnlyWhatWasSetAndTellsOfARowThatHasGone) {
    add(store, "Lamp", "old");
    Recordset set = store.openTable("tblGood", {"WHERE Code = ?", {"LAMP"}});
    theirs.run({"UPDATE tblGood SET Price = ?", {bound(Currency::fromInteger(5))}});
    set.set("Name", QString("new"));
    EXPECT_EQ(set.text("Name"), "new");
    set.update();
    const Recordset row = store.execute("SELECT * FROM tblGood");
    EXPECT_EQ(row.currency("Price"), Currency::fromInteger(5));
    EXPECT_EQ(row.text("Name"), "new");

    theirs.run("DELETE FROM tblGood");
    set.set("Name", QString("newer"));
    EXPECT_EQ(numberThrown([&] { set.update(); }), StoreError::noCurrentRow);
    Recordset none = store.openTable("tblGood", {"WHERE Code = ?", {"LAMP"}});
    EXPECT_TRUE(none.eof());
    EXPECT_EQ(numberThrown([&] { none.set("Name", QString("x")); }), StoreError::noCurrentRow);
    EXPECT_EQ(numberThrown([&] { none.text("Name"); }), StoreError::noCurrentRow);
}

TEST_F(StoreTest, StatementsWithTooFewOrWrongValuesFail) {
    const Sql two{"SELECT ? AS A, ? AS B", {1, 2}};
    EXPECT_EQ(store.execute(two).integer("B"), 2);
    EXPECT_EQ(numberThrown([&] { store.execute({two.text, {1}}); }), StoreError::general);
    EXPECT_EQ(numberThrown([&] { BulkReader(store, {two.text, {1}}); }), StoreError::general);
    EXPECT_EQ(numberThrown([&] { store.execute("SELECT nonsense"); }), StoreError::general);
    const qint64 most = std::numeric_limits<qint64>::max();
    const Sql sum{"SELECT SUM(n) AS S FROM (SELECT ? AS n UNION ALL SELECT 1)", {most}};
    EXPECT_EQ(numberThrown([&] { store.execute(sum); }), StoreError::general) << "an overflow never wraps";
}

TEST_F(StoreTest, TheStatementHookSeesEveryWriteOnceAndMayStopIt) {
    QStringList seen;
    Connection::setStatementHook([&](const QString& text) {
        seen += text.section(u' ', 0, 0);
        if (text == "COMMIT" && seen.size() > 6) throw std::runtime_error("killed");
    });
    const auto save = [&](const QString& code) {
        Transaction unit(store);
        add(store, code);
        BulkWriter writer(store, "INSERT INTO tblLine (Good, Served) VALUES (?, ?)");
        writer.bind(1, code);
        writer.bind(2, Currency::fromInteger(1));
        writer.step();
        count(store);
        unit.commit();
    };
    save("one");
    EXPECT_EQ(seen, QStringList({"INSERT", "INSERT", "COMMIT"}));
    store.runMany("UPDATE tblGood SET Pieces = ? WHERE Code = ?", {{1, "one"}, {2, "two"}});
    EXPECT_EQ(seen.size(), 6);
    EXPECT_THROW(save("two"), std::runtime_error);
    EXPECT_EQ(count(store), 1);
}
