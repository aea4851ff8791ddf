#include "documents/journal_query.h"
#include "purchases/frmPurchaseGrid.h"
#include "sales/frmSalesGrid.h"

#include <gtest/gtest.h>

namespace {
JournalQuery salesQuery() { return JournalQuery(salesJournal().tables); }

QString statement(const JournalQuery& query) { return query.where().text + query.order(); }

const bool exact = true;
const bool any = false;

// Of the sales journal the tests of its screen run each search over rows.
TEST(JournalQuery, ASearchIsOneClauseWithItsValueBound) {
    const QVariant march3 = QDate(2026, 3, 3);
    const QVariant amount = QVariant::fromValue(Currency::fromTenThousandths(12345000));
    const struct {
        const JournalBook& (*book)();
        const char *category, *text;
        bool exact;
        const char* clause;
        QVariant value;
    } cases[] = {
        {salesJournal, "Delivery Date", "3/3/26", exact, " WHERE RefDate = ?", march3},
        {salesJournal, "Total Amount", "1234.50", exact, " WHERE TotalAmount = ?", amount},
        {salesJournal, "Who Updated", "adm", any, " WHERE tblSalesMaster.UpdatedBy LIKE ?", "%adm%"},
        {purchaseJournal, "Purchase No.", "0001", any, " WHERE PurchaseNo LIKE ?", "%0001%"},
        {purchaseJournal, "Purchase No.", " 0001 ", exact, " WHERE PurchaseNo = ?", "0001"},
        {purchaseJournal, "Purchase Date", "03-03-2026", any, " WHERE PurchaseDate = ?", march3},
        {purchaseJournal, "Supplier Name", "Acme", exact, " WHERE ContactName = ?", "Acme"},
        {purchaseJournal, "Total Amount", "1,234.5", any, " WHERE PurchaseAmount = ?", amount},
        {purchaseJournal, "Remarks", "rush", any, " WHERE tblPurchaseMaster.Remarks LIKE ?", "%rush%"},
        {purchaseJournal, "Who Updated", "ADMIN", exact, " WHERE tblPurchaseMaster.UpdatedBy = ?", "ADMIN"}};
    for (const auto& row : cases) {
        JournalQuery query(row.book().tables);
        ASSERT_FALSE(query.search(row.category, row.text, row.exact));
        EXPECT_EQ(query.where().text, QString(row.clause));
        ASSERT_EQ(query.where().values.size(), 1);
        EXPECT_EQ(query.where().values[0].metaType(), row.value.metaType()) << row.clause;
        EXPECT_EQ(storedValue(query.where().values[0]), storedValue(row.value));
        EXPECT_EQ(query.order(), QString(row.book().tables.searchOrder));
    }
}

struct RefusedCase {
    const char* category;
    const char* text;
    const char* title;
};

TEST(JournalQuery, KeepsTheFormerClauseWhenASearchIsRefused) {
    const RefusedCase cases[] = {
        {"Delivery Nr", "x", "Error!"},           {"", "x", "Error!"},
        {"Delivery Date", "2/30/26", "Error..."}, {"Delivery Date", "12", "Error..."},
        {"Total Amount", "1.2.3", "Error..."},    {"Total Amount", "1e5", "Error..."}};
    for (const RefusedCase& row : cases) {
        JournalQuery query = salesQuery();
        ASSERT_FALSE(query.search("Customer Name", "cruz", any));
        const QString before = statement(query);
        const auto box = query.search(row.category, row.text, any);
        ASSERT_TRUE(box) << row.text;
        EXPECT_EQ(box->title, QString(row.title)) << row.text;
        EXPECT_EQ(statement(query), before) << row.text;
    }
    EXPECT_EQ(salesQuery().search("Nothing", "x", any)->text, QString("Criteria does not exist!"));
}

TEST(JournalQuery, FirstSearchPutsTheFilterBehindItsClause) {
    JournalQuery query = salesQuery();
    query.setPrintedFilter(false, false);
    ASSERT_FALSE(query.search("Customer Name", "cruz", any));
    EXPECT_EQ(statement(query), QString(" WHERE ContactName LIKE ? AND Printed = False"));
    query.setPrintedFilter(true, true);
    ASSERT_FALSE(query.search("Delivery No.", "1001", exact));
    EXPECT_EQ(statement(query), QString(" WHERE RefNo = ? AND Printed = True"));
    EXPECT_EQ(query.where().values, QVariantList{QString("1001")});
}

TEST(JournalQuery, SortAndFilterReplaceEachOther) {
    JournalQuery query = salesQuery();
    query.setPrintedFilter(true, false);
    query.setOrder(" ORDER BY RefNo ASC");
    EXPECT_EQ(statement(query), QString(" ORDER BY RefNo ASC"));
    query.setPrintedFilter(true, false);
    EXPECT_EQ(statement(query), QString(" WHERE Printed = True"));
}

TEST(JournalQuery, SortAndClauseStayWhenTheTextIsCleared) {
    JournalQuery query = salesQuery();
    query.setOrder(" ORDER BY RefNo ASC");
    ASSERT_FALSE(query.search("Customer Name", "cruz", any));
    ASSERT_FALSE(query.search("Customer Name", "   ", any));
    EXPECT_EQ(statement(query), QString(" WHERE ContactName LIKE ? ORDER BY RefNo ASC"));
}

TEST(JournalQuery, FilterWithoutATextBehindAFormerClauseStandsAsASecondWhere) {
    JournalQuery query = salesQuery();
    ASSERT_FALSE(query.search("Customer Name", "cruz", any));
    query.setPrintedFilter(true, false);
    EXPECT_EQ(statement(query), QString(" WHERE ContactName LIKE ? WHERE Printed = True"));
    ASSERT_FALSE(query.search("Customer Name", "reyes", any));
    EXPECT_EQ(statement(query), QString(" WHERE ContactName LIKE ? AND Printed = True"));
}
}  // namespace
