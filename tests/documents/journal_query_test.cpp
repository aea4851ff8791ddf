#include "documents/journal_query.h"
#include "purchases/frmPurchaseGrid.h"
#include "sales/frmSalesGrid.h"

#include <gtest/gtest.h>

namespace {
JournalQuery salesQuery() { return JournalQuery(salesJournal().tables); }

QString statement(const JournalQuery& query) { return query.where().text + query.order(); }

struct SearchCase {
    const char* name;
    const JournalBook& (*book)();
    const char* category;
    const char* text;
    bool exact;
    const char* clause;
    QVariant value;
};

void PrintTo(const SearchCase& row, std::ostream* out) { *out << row.name; }

class JournalSearch : public ::testing::TestWithParam<SearchCase> {};

const bool exact = true;
const bool any = false;

const QVariant march3 = QDate(2026, 3, 3);
const QVariant amount = QVariant::fromValue(Currency::fromTenThousandths(12345000));

TEST_P(JournalSearch, GivesOneClauseWithItsValueBound) {
    const SearchCase& row = GetParam();
    JournalQuery query(row.book().tables);
    ASSERT_FALSE(query.search(row.category, row.text, row.exact));
    EXPECT_EQ(query.where().text, QString(row.clause));
    ASSERT_EQ(query.where().values.size(), 1);
    EXPECT_EQ(query.where().values[0].metaType(), row.value.metaType());
    EXPECT_EQ(storedValue(query.where().values[0]), storedValue(row.value));
    EXPECT_EQ(query.order(), QString(row.book().tables.searchOrder));
}

INSTANTIATE_TEST_SUITE_P(
    Journals, JournalSearch,
    ::testing::Values(
        SearchCase{"number", salesJournal, "Delivery No.", " 11-1001-2026 ", exact, " WHERE RefNo = ?",
                   "11-1001-2026"},
        SearchCase{"numberAny", salesJournal, "Delivery No.", "1001", any, " WHERE RefNo LIKE ?", "%1001%"},
        SearchCase{"date", salesJournal, "Delivery Date", "3/3/26", exact, " WHERE RefDate = ?", march3},
        SearchCase{"dateAny", salesJournal, "Delivery Date", "03-03-2026", any, " WHERE RefDate = ?", march3},
        SearchCase{"customer", salesJournal, "Customer Name", "Dela Cruz", exact, " WHERE ContactName = ?",
                   "Dela Cruz"},
        SearchCase{"customerAny", salesJournal, "Customer Name", "cruz", any, " WHERE ContactName LIKE ?",
                   "%cruz%"},
        SearchCase{"amount", salesJournal, "Total Amount", "1234.50", exact, " WHERE TotalAmount = ?",
                   amount},
        SearchCase{"amountAny", salesJournal, "Total Amount", "1,234.5", any, " WHERE TotalAmount = ?",
                   amount},
        SearchCase{"remarks", salesJournal, "Remarks", "rush", exact, " WHERE tblSalesMaster.Remarks = ?",
                   "rush"},
        SearchCase{"remarksAny", salesJournal, "Remarks", "rush", any, " WHERE tblSalesMaster.Remarks LIKE ?",
                   "%rush%"},
        SearchCase{"updatedBy", salesJournal, "Who Updated", "ADMIN", exact,
                   " WHERE tblSalesMaster.UpdatedBy = ?", "ADMIN"},
        SearchCase{"updatedByAny", salesJournal, "Who Updated", "adm", any,
                   " WHERE tblSalesMaster.UpdatedBy LIKE ?", "%adm%"},
        SearchCase{"hostile", salesJournal, "Remarks", "x' OR '1'='1", any,
                   " WHERE tblSalesMaster.Remarks LIKE ?", "%x' OR '1'='1%"},
        SearchCase{"purchaseNumber", purchaseJournal, "Purchase No.", "0001", any, " WHERE PurchaseNo LIKE ?",
                   "%0001%"},
        SearchCase{"purchaseDate", purchaseJournal, "Purchase Date", "3/3/26", any, " WHERE PurchaseDate = ?",
                   march3},
        SearchCase{"supplier", purchaseJournal, "Supplier Name", "Acme", exact, " WHERE ContactName = ?",
                   "Acme"},
        SearchCase{"purchaseAmount", purchaseJournal, "Total Amount", "1234.5", any,
                   " WHERE PurchaseAmount = ?", amount},
        SearchCase{"purchaseRemarks", purchaseJournal, "Remarks", "rush", any,
                   " WHERE tblPurchaseMaster.Remarks LIKE ?", "%rush%"},
        SearchCase{"purchaseUpdatedBy", purchaseJournal, "Who Updated", "ADMIN", exact,
                   " WHERE tblPurchaseMaster.UpdatedBy = ?", "ADMIN"}),
    [](const auto& row) { return std::string(row.param.name); });

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

TEST(JournalQuery, FreshJournalListsWhatIsNotPrinted) {
    JournalQuery query = salesQuery();
    query.setPrintedFilter(false, false);
    EXPECT_EQ(statement(query), QString(" WHERE Printed = False"));
    EXPECT_EQ(query.order(), QString());
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
