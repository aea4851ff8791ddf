#include "foundation/encryption.h"
#include "foundation/schema.h"
#include "foundation/store_place.h"
#include "platform/parsing.h"
#include "platform/store/place.h"
#include "platform/store/schema_faults.h"
#include "platform/store/schema_steps.h"
#include "support/files.h"
#include "support/test_server.h"
#include "support/test_store.h"

#include <QCoreApplication>
#include <QProcess>

class DeliveredStore : public SessionTest {};

TEST_F(DeliveredStore, HoldsTheFirmItsUnitsAndTheCatalogueOfRights) {
    EXPECT_EQ(valueOf(store(), "SELECT MenuName FROM tblUserMenu WHERE MenuCode = 416"),
              "Print Sales Profitability Report");
    EXPECT_EQ(valueOf(store(), "SELECT COUNT(*) FROM tblUserMenu"), "41");
    EXPECT_EQ(valueOf(store(), "SELECT COUNT(*) FROM tblSystemProfile WHERE CompanyName = 'Zevrin'"), "1");
    EXPECT_EQ(valueOf(store(), "SELECT COUNT(*) FROM tblUnitMaster WHERE UnitCode = 'pc'"), "1");
}

TEST_F(DeliveredStore, AdminHasEveryRightAndTheMasterLoginAllButTheEndOfDay) {
    for (const char* user : {"ADMIN", masterUserCode}) {
        const Recordset row = store().execute({"SELECT * FROM tblUserMaster WHERE UserCode = ?", {user}});
        ASSERT_FALSE(row.eof());
        const auto types = store().columnTypes("tblUserMaster");
        for (const QString& column : types.keys("BOOLEAN"))
            EXPECT_EQ(row.flag(column), column != "endofday" || QString(user) == "ADMIN")
                << user << qPrintable(column);
        EXPECT_EQ(types.keys("BOOLEAN").size(), 17);
        EXPECT_EQ(valueOf(store(), {"SELECT COUNT(*) FROM tblUserDetails INNER JOIN tblUserMenu ON MenuID = "
                                    "MenuCode WHERE UserID = ?",
                                    {user}}),
                  "41");
    }
}

TEST_F(DeliveredStore, PasswordsSurviveTheTrimOfTheirReaders) {
    const auto password = [](Connection& from, const char* user) {
        return DecryptText(
            trim(valueOf(from, {"SELECT Password FROM tblUserMaster WHERE UserCode = ?", {user}})));
    };
    EXPECT_EQ(password(store(), "ADMIN"), "admin");
    const QString master = password(store(), masterUserCode);
    EXPECT_GE(master.size(), 16);
    makeDeliveredStore(folder_.filePath("second.mdb"));
    Connection second;
    second.open(folder_.filePath("second.mdb"), storePassword);
    EXPECT_NE(password(second, masterUserCode), master) << "nobody knows it";
}

TEST_F(DeliveredStore, ATrueIsMinusOneHoweverItIsWritten) {
    const Sql writes[] = {
        {"INSERT INTO tblChecks (ZevRef, Negotiated, Printed) VALUES (1, 1, 0)"},
        {"INSERT INTO tblChecks (ZevRef, Negotiated, Printed) VALUES (1, ?, ?)", {7, false}},
        {"INSERT INTO tblChecks (ZevRef, Negotiated) VALUES (1, True)"},
    };
    const char* const negotiated =
        "SELECT COUNT(*) FROM tblChecks WHERE Negotiated = True AND Printed = False";
    for (const Sql& write : writes) {
        SCOPED_TRACE(qPrintable(write.text));
        EXPECT_EQ(store().run(write), 1);
        EXPECT_EQ(valueOf(store(), negotiated), "1");
        EXPECT_EQ(store().run({"UPDATE tblChecks SET Printed = ?, CheckNo = '7'", {1}}), 1);
        EXPECT_EQ(valueOf(store(), "SELECT Printed FROM tblChecks WHERE CheckNo = '7'"), "-1");
        store().run("DELETE FROM tblChecks");
    }
}

TEST_F(DeliveredStore, WhatIsNotWrittenReadsAsTheBooksNeedIt) {
    store().run("INSERT INTO tblStockValuation (ZevRef) VALUES (1)");
    store().run("INSERT INTO tblReceiptDetails (ZevRef) VALUES (1)");
    const Recordset row = store().execute("SELECT * FROM tblStockValuation");
    EXPECT_FALSE(row.isNull("StockIn") || row.isNull("InPrice") || row.isNull("SalesCost"));
    EXPECT_EQ(valueOf(store(), "SELECT COUNT(*) FROM tblReceiptDetails WHERE CheckNo <> 'Cash'"), "0");
    EXPECT_EQ(valueOf(store(), "SELECT COUNT(*) FROM tblReceiptDetails WHERE Negotiated = False"), "1");
}

TEST_F(DeliveredStore, KeysRefuseASecondOfTheSameLettersAndNumbersMayBeQuoted) {
    addItem(store(), {"Lamp", "A lamp"});
    try {
        addItem(store(), {"LAMP", "Another"});
        FAIL() << "two items of one code";
    } catch (const StoreError& error) {
        EXPECT_EQ(error.number(), StoreError::refused);
    }
    store().run("INSERT INTO tblReceiptMaster (PayNo) VALUES (12)");
    EXPECT_EQ(valueOf(store(), "SELECT COUNT(*) FROM tblReceiptMaster WHERE PayNo = '12'"), "1");
    EXPECT_EQ(valueOf(store(), {"SELECT COUNT(*) FROM tblReceiptMaster WHERE PayNo = ?", {"12"}}), "1");
}

TEST_F(DeliveredStore, TheHotQuestionsAreAnsweredByAnIndex) {
    SKIP_ON_SERVER();
    const char* questions[] = {
        "SELECT SUM(Served) FROM tblSalesDetails WHERE ItemID = 'a'",
        "SELECT SUM(Delivered) FROM tblPurchaseDetails WHERE ItemID = 'a'",
        "SELECT SUM(Amount), SUM(DiscountAmount) FROM tblReceiptDetails WHERE Reference = 'a'",
        "SELECT SUM(PayAmount) FROM tblDisbursementDetails WHERE PuchaseID = 'a' AND DirectPayment = 0",
        "SELECT * FROM tblStockValuation WHERE ItemCode = 'a' ORDER BY ItemCode, TransDate, BookID, ZevRef",
        "SELECT * FROM tblStockValuation ORDER BY ItemCode, TransDate, BookID, ZevRef",
        "SELECT * FROM tblStockValuation WHERE BookID = 'S' AND Reference = 'a'",
        "SELECT * FROM tblSalesMaster WHERE RefNo = 'a'",
        "SELECT * FROM tblSalesMaster ORDER BY RefDate DESC",
        "SELECT * FROM tblContactMaster ORDER BY ContactName",
        "SELECT * FROM tblUserDetails WHERE UserID = 'a' ORDER BY MenuID"};
    for (const char* question : questions) {
        Recordset plan = store().execute(QString("EXPLAIN QUERY PLAN ") + question);
        for (; !plan.eof(); plan.moveNext()) {
            EXPECT_TRUE(plan.text("detail").contains("INDEX")) << question << qPrintable(plan.text("detail"));
            EXPECT_FALSE(plan.text("detail").contains("TEMP B-TREE")) << question;
        }
    }
}

TEST(OlderStore, KeepsItsRowsInTheirOrderWhenTheTablesGetKeys) {
    registerSchema();
    const std::vector<SchemaStep> all = schemaSteps();
    const QTemporaryDir folder;
    const QString path = folder.filePath(storeFileName);
    setSchemaSteps({all.begin(), all.begin() + 3});
    Connection store;
    store.create(path, storePassword);
    applySchemaSteps(store);
    for (const char* item : {"first", "gone", "third"})
        insertRow(store, "tblSalesDetails", "Reference, ItemID, Served", {"1", item, bound(amount(1.5))});
    store.run("DELETE FROM tblSalesDetails WHERE ItemID = 'gone'");
    insertRow(store, "tblSalesMaster", "RefNo, Printed", {"a", true});
    setSchemaSteps(all);
    store.close();
    store.open(path, storePassword);
    EXPECT_EQ(schemaFaults(store), QStringList());
    Recordset line = store.openTable("tblSalesDetails", "WHERE ItemID = 'THIRD'");
    EXPECT_EQ(line.integer("RowNo"), 3);
    EXPECT_EQ(line.currency("Served"), amount(1.5));
    line.set("ItemID", "second");
    line.update();
    EXPECT_EQ(valueOf(store, "SELECT COUNT(*) FROM tblSalesDetails WHERE ItemID = 'second' AND RowNo = 3"),
              "1");
    EXPECT_EQ(valueOf(store, "SELECT RowNo FROM tblSalesMaster WHERE Printed = True"), "1");
    QStringList tables = tablesOf(store);
    EXPECT_TRUE(tables.removeOne("StockTouched"));
    for (const QString& table : tables) EXPECT_NO_THROW(keyOf(store, table)) << qPrintable(table);
}

namespace {
int runMkstore(const QStringList& arguments, QString* message = nullptr, QString* printed = nullptr) {
    QProcess program;
    program.start(QCoreApplication::applicationDirPath() + "/mkstore", arguments);
    EXPECT_TRUE(program.waitForFinished(30000));
    if (message) *message = program.readAllStandardError();
    if (printed) *printed = program.readAllStandardOutput();
    return program.exitCode();
}
}  // namespace

TEST(Mkstore, MakesAStoreAndRefusesToReplaceOne) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("Quorvel.mdb");
    ASSERT_EQ(runMkstore({path}), 0);
    Connection store;
    store.open(path, storePassword);
    store.run("UPDATE tblSystemProfile SET CompanyName = 'Mine'");
    QString message;
    EXPECT_EQ(runMkstore({path}, &message), 1);
    EXPECT_TRUE(message.contains("already exists")) << qPrintable(message);
    EXPECT_EQ(valueOf(store, "SELECT CompanyName FROM tblSystemProfile"), "Mine");
    EXPECT_EQ(runMkstore({folder.filePath("none/Quorvel.mdb")}, &message), 1);
    EXPECT_FALSE(message.isEmpty());
    EXPECT_EQ(runMkstore({}), 2);
    EXPECT_EQ(QDir(folder.path()).entryList({"*.new*", "*.unfinished*"}), QStringList()) << "no draft left";
}

TEST(Mkstore, ChecksTheStoreTheSchemaAndEveryBalance) {
    const QTemporaryDir folder;
    const QString place = newStoreIn(folder.path());
    const struct {
        const char* change;
        const char* printed;
    } cases[] = {{"SELECT 1", "The store is sound."},
                 {"INSERT INTO tblItemMaster (ItemCode, Balance) VALUES ('A', 20000)",
                  "tblItemMaster A has the balance 2, recomputed 0"},
                 {"DROP INDEX tblSalesDetails_Reference", "missing index tblSalesDetails_Reference"}};
    for (const auto& [change, expected] : cases) {
        Connection store;
        store.open(place, passwordFor(place));
        store.run(change);
        store.close();
        QString printed;
        const int answer = runMkstore({"--check", place}, nullptr, &printed);
        EXPECT_EQ(answer, printed.startsWith("The store") ? 0 : 1);
        EXPECT_TRUE(printed.startsWith(expected, Qt::CaseInsensitive)) << qPrintable(printed);
    }
    if (onTestServer()) return;
    QByteArray torn = contentOf(place);
    torn.replace(3 * 4096, 64, QByteArray(64, 'z'));
    writeFile(place, torn);
    EXPECT_EQ(runMkstore({"--check", place}), 1);
}
