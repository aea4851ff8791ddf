#include "documents/document_delete.h"
#include "books/balances.h"
#include "books/end_of_day.h"
#include "books/posting_queue.h"
#include "documents/journal_book.h"
#include "foundation/shared_routines.h"
#include "purchases/frmPurchaseGrid.h"
#include "purchases/purchase_document.h"
#include "sales/frmSalesGrid.h"
#include "sales/sales_document.h"
#include "support/test_store.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {
struct Side {
    const char* name;
    const JournalBook& (*book)();
    const OrderBook& orders;
};

void PrintTo(const Side& side, std::ostream* out) { *out << side.name; }

// One side's books with a document "A" of one line, queued, and with a valuation row as after an end of day.
class Deletion : public SessionTest, public ::testing::WithParamInterface<Side> {
  protected:
    void SetUp() override {
        SessionTest::SetUp();
        store().run(
            {"INSERT INTO tblItemMaster (ItemCode, Description, Balance) VALUES ('I1', 'Rice', 990000)"});
        insertDocument("A");
        insertDocument("B");
    }

    const DeletionRules& rules() const { return GetParam().book().deletion; }
    const OrderBook& orders() const { return GetParam().orders; }

    void insertDocument(const QString& key) {
        const DocumentRow document{key, QDate(2026, 3, 3), "C1", {{"I1", amount(5), amount(10)}}};
        orders().sells ? addSale(store(), document) : addPurchase(store(), document);
        AddStockValuation(store(), orders().bookId, key, "C1", "I1", QDate(2026, 3, 3),
                          Currency::fromInteger(5), Currency::fromInteger(10));
    }

    void pay(const QString& key) {
        const DeleteGuard& guard = *rules().guard;
        if (orders().sells)
            insertRow(store(), guard.table, QString("ZevRef, ") + guard.column, {1, key});
        else
            insertRow(store(), guard.table, guard.column, {key});
    }

    // The rows of document A in the master, its lines, the valuation and the queue, then the queued items.
    QList<qint64> rowsLeft() {
        const auto count = [this](const QString& from) {
            return store().execute(Sql{"SELECT COUNT(*) AS Ihap FROM " + from}).integer("Ihap");
        };
        return {count(QString("%1 WHERE %2 = 'A'")
                          .arg(QString(orders().master.table), QString(orders().master.key))),
                count(QString("%1 WHERE Reference = 'A'").arg(QString(orders().detailTable))),
                count("tblStockValuation WHERE Reference = 'A'"),
                count("tblForPosting WHERE Reference = 'A'"), count("tblForPostingItem")};
    }
};

TEST_P(Deletion, TakesALockedDocumentOutOfEveryTableAndLeavesTheItemsQueued) {
    setRecordLock(store(), orders().master, "A", true);
    EXPECT_TRUE(isDone(deleteDocument(store(), rules(), "A")));
    EXPECT_EQ(rowsLeft(), (QList<qint64>{0, 0, 0, 0, 1}));
    EXPECT_TRUE(RecordFound(store(), orders().master.table, orders().master.key, "B"));
    EXPECT_TRUE(RecordFound(store(), "tblStockValuation", "Reference", "B"));
    EXPECT_TRUE(HasPendingPosting(store()));
}

TEST_P(Deletion, SparesTheOtherBookWithTheSameNumber) {
    const char* other = orders().sells ? "P" : "S";
    QueueBookForPosting(store(), other, "A", "C1", QDate(2026, 3, 3));
    AddStockValuation(store(), other, "A", "C1", "I1", QDate(2026, 3, 3), Currency::fromInteger(1),
                      Currency());
    deleteDocument(store(), rules(), "A");
    EXPECT_EQ(rowsLeft(), (QList<qint64>{0, 0, 1, 1, 1}));
}

TEST_P(Deletion, RefusesADocumentWithAPaymentOfNothing) {
    pay("A");
    const Outcome outcome = deleteDocument(store(), rules(), "A");
    const auto* fault = std::get_if<Fault>(&outcome);
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->box, exclamation("Error!", rules().guard->message));
    EXPECT_EQ(rowsLeft(), (QList<qint64>{1, 1, 1, 1, 1}));
    EXPECT_TRUE(isDone(deleteDocument(store(), rules(), "B")));
}

TEST_P(Deletion, FailingAnywhereLeavesTheDocumentWhole) {
    const auto from = [](const char* table) { return QString("DELETE FROM ") + table; };
    const QStringList steps{from("tblStockValuation"), from("tblForPosting"), from(orders().detailTable),
                            from(orders().master.table), "UPDATE tblItemMaster"};
    for (const QString& step : steps) {
        Connection::setStatementHook([&](const QString& statement) {
            if (statement.startsWith(step)) throw StoreError(StoreError::busy, "another workstation");
        });
        EXPECT_THROW(deleteDocument(store(), rules(), "A"), StoreError) << qPrintable(step);
        Connection::setStatementHook({});
        EXPECT_EQ(rowsLeft(), (QList<qint64>{1, 1, 1, 1, 1})) << qPrintable(step);
    }
}

TEST_P(Deletion, BringsTheBalancesToWhatIsLeft) {
    store().run(QString("UPDATE %1 SET Balance = 0").arg(QString(orders().master.table)));
    deleteDocument(store(), rules(), "A");
    const Recordset other =
        store().execute({QString("SELECT Balance FROM %1").arg(QString(orders().master.table))});
    EXPECT_EQ(other.currency("Balance"), Currency::fromInteger(50));
    const Recordset item = store().execute({"SELECT Balance FROM tblItemMaster WHERE ItemCode = 'I1'"});
    EXPECT_EQ(item.currency("Balance"), Currency::fromInteger(orders().sells ? -5 : 5));
}

INSTANTIATE_TEST_SUITE_P(Journals, Deletion,
                         ::testing::Values(Side{"Sales", salesJournal, salesOrders},
                                           Side{"Purchases", purchaseJournal, purchaseOrders}),
                         [](const auto& side) { return std::string(side.param.name); });
}  // namespace
