#include "foundation/shared_routines.h"
#include "platform/box.h"
#include "platform/clock.h"
#include "platform/ui/combo_box.h"
#include "support/box_script.h"
#include "support/test_server.h"
#include "support/test_store.h"

class SharedRoutines : public SessionTest {
  protected:
    BoxScript boxes;
};

TEST_F(SharedRoutines, ACombosRowsAreTrimmedAndAnEmptyTableIsToldWhenAsked) {
    store().run("INSERT INTO tblTemp (Server) VALUES ('  one '), (NULL), ('two')");
    ComboBox combo("cboTest", ComboBox::Open);
    combo.addItem("old");
    LoadComboBox("Server", "tblTemp", &combo, true);
    ASSERT_EQ(combo.count(), 3);
    EXPECT_EQ(combo.itemText(0) + '|' + combo.itemText(1) + '|' + combo.itemText(2), "one||two");
    LoadComboBoxUDF("Server", "tblTemp", &combo, {"Server = ?", {"two"}}, true);
    EXPECT_EQ(combo.count(), 1);
    store().run("DELETE FROM tblTemp");
    LoadComboBox("Server", "tblTemp", &combo, false);
    EXPECT_EQ(combo.count(), 0);
    boxes.expect(information("ComboBox Message", "cboTest is Empty"));
    LoadComboBox("Server", "tblTemp", &combo, true);
}

TEST_F(SharedRoutines, AComboThatCannotBeFilledTellsItsStatement) {
    ComboBox combo("cboTest", ComboBox::Open);
    combo.addItem("old");
    boxes.expect("Load Combo Box - Error",
                 QString("Err.Desctiption = %1\nCombo SQL = SELECT Colour FROM tblTemp")
                     .arg(onTestServer() ? "column \"colour\" does not exist" : "no such column: Colour"));
    LoadComboBox("Colour", "tblTemp", &combo, false);
    boxes.expect("LoadComboBox - UDF Error");
    LoadComboBoxUDF("Colour", "tblTemp", &combo, {"Server = ?", {"x"}}, false);
    EXPECT_EQ(combo.count(), 1) << "what it held stays";
}

TEST_F(SharedRoutines, DeletesGuardThemselvesAgainstABlank) {
    store().run("INSERT INTO tblTemp (Server) VALUES ('a'), ('b'), ('')");
    store().run("INSERT INTO tblReceiptDetails (ZevRef, PayCode) VALUES (1, 7), (2, 8)");
    DeleteWhereValue(store(), "  ", "tblTemp", "Server");
    DeleteWhereText(store(), " ", "tblTemp", "a");
    EXPECT_EQ(CountRecords(store(), "tblTemp"), 3);
    DeleteWhereValue(store(), " A ", "tblTemp", "Server");
    DeleteWhereText(store(), "Server", "tblTemp", "b ");
    EXPECT_EQ(CountRecords(store(), "tblTemp"), 1);
    DeleteWhereValue(store(), "7", "tblReceiptDetails", "PayCode", "N");
    EXPECT_EQ(CountRecords(store(), "tblReceiptDetails"), 1);
    EXPECT_THROW(DeleteWhereValue(store(), "8 OR 1=1", "tblReceiptDetails", "PayCode", "N"), StoreError);
    EXPECT_EQ(CountRecords(store(), "tblReceiptDetails"), 1);
}

TEST_F(SharedRoutines, LookupsIgnoreCaseAndTrailingBlanks) {
    addContact(store(), {"1000000001", "O'Brien & Co"});
    const auto lookup = [&](const QString& value, LookupMode mode) {
        return LookupField(store(), "ContactID", "tblContactMaster", "ContactName", value, mode);
    };
    EXPECT_EQ(lookup("1000000001  ", LookupMode::DisplayText), "O'Brien & Co");
    EXPECT_EQ(lookup("o'brien & CO ", LookupMode::PrimaryKey), "1000000001");
    EXPECT_EQ(lookup("nobody", LookupMode::PrimaryKey), "");
    EXPECT_TRUE(RecordFound(store(), "tblContactMaster", "ContactName", "O'BRIEN & co  "));
    EXPECT_FALSE(RecordFound(store(), "tblContactMaster", "ContactName", " O'Brien & Co"));
}

TEST_F(SharedRoutines, PercentsGoThroughDoubleOnce) {
    const struct {
        double percent, value, net, signedNet;
    } table[] = {{0, 100, 100, 100},
                 {10, 0, 0, 0},
                 {10, 100, 90, 90},
                 {-10, 100, 90, 110},
                 {33.3333, 99.99, 66.66, 66.66},
                 {5, 0.0010, 0.0010, 0.0010},     // 0.00005 rounds to the even ten-thousandth
                 {12.5, 0.0244, 0.0213, 0.0214},  // each rounds a half of its own
                 {100, 12.34, 0, 0}};
    for (const auto& row : table) {
        EXPECT_EQ(NetOfPercent(amount(row.percent), amount(row.value)).tenThousandths(),
                  amount(row.net).tenThousandths())
            << row.percent << " of " << row.value;
        EXPECT_EQ(NetPrice(amount(row.value), amount(row.percent)).tenThousandths(),
                  amount(row.signedNet).tenThousandths())
            << row.percent << " of " << row.value;
    }
    EXPECT_EQ(MultiplyAmounts(amount(0.0005), amount(0.1)), amount(0));
}

TEST_F(SharedRoutines, RightsAreThoseOfTheCurrentUser) {
    session().CurrentUserCode = "admin ";
    EXPECT_TRUE(UserHasAccess(store(), "EndofDay"));
    session().CurrentUserCode = masterUserCode;
    EXPECT_FALSE(UserHasAccess(store(), "EndofDay"));
    session().CurrentUserCode = "nobody";
    EXPECT_FALSE(UserHasAccess(store(), "PrintDRAccess"));
}

TEST_F(SharedRoutines, TheSpanOfTheBooksIsTodayWithoutDocuments) {
    EXPECT_EQ(GetFirstSalesDate(store()), Clock::today());
    EXPECT_EQ(GetLastPurchaseDate(store()), Clock::today());
    addItem(store(), {"a", "A"});
    for (const int day : {5, 2, 9}) {
        addSale(store(), {QString("s%1").arg(day), QDate(2024, 3, day), "1", {{"a", amount(1), amount(2)}}});
        addPurchase(store(), {QString("p%1").arg(day), QDate(2024, 4, day), "1", {}});
    }
    EXPECT_EQ(GetFirstSalesDate(store()), QDate(2024, 3, 2));
    EXPECT_EQ(GetLastSalesDate(store()), QDate(2024, 3, 9));
    EXPECT_EQ(GetFirstPurchaseDate(store()), QDate(2024, 4, 2));
    EXPECT_EQ(GetLastPurchaseDate(store()), QDate(2024, 4, 9));
}

TEST(SaveErrors, ARefusedKeyHasItsOwnWords) {
    EXPECT_EQ(saveErrorBox({StoreError::refused, "UNIQUE"}),
              exclamation("Duplicate!", "Code already exist, please assign another..."));
    EXPECT_EQ(saveErrorBox({StoreError::busy, "busy"}), exclamation("Error...", "busy"));
}
