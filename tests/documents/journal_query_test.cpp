#include "documents/journal_query.h"
#include "purchases/frmPurchaseGrid.h"
#include "sales/frmSalesGrid.h"

#include <gtest/gtest.h>

namespace {
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

}  // namespace
