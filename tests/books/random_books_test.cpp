// Random books through every routine, against a plain model: no difference of a ten-thousandth is allowed.
#include "books/balances.h"
#include "books/books_model.h"
#include "books/books_test.h"
#include "books/contact_balances.h"
#include "books/end_of_day.h"
#include "books/stock_valuation.h"
#include "platform/store/place.h"

#include <random>

class RandomBooksTest : public BooksTest, public testing::WithParamInterface<unsigned> {
  protected:
    void SetUp() override {
        BooksTest::SetUp();
        write("DELETE FROM tblContactMaster");
        books = makeBooks(GetParam());
        writeBooks(store, books);
    }
    void expectStored(const QString& column, const QString& table, const QString& key,
                      const std::function<qint64(const QString&)>& figure) {
        int rows = 0;
        for (auto row = store.execute(QString("SELECT %1 AS k, %2 AS v FROM %3").arg(key, column, table));
             !row.eof(); row.moveNext(), ++rows)
            EXPECT_EQ(row.currency("v").tenThousandths(), figure(row.text("k")))
                << qPrintable(column + " of " + row.text("k"));
        EXPECT_GT(rows, 0);
    }
    void expectStoredBalances(const BooksModel& model) {
        expectStored("Balance", "tblSalesMaster", "RefNo", [&](auto key) { return model.salesBalance(key); });
        expectStored("Balance", "tblPurchaseMaster", "PurchaseNo",
                     [&](auto key) { return model.purchaseBalance(key); });
        expectStored("Balance", "tblItemMaster", "ItemCode",
                     [&](auto key) { return model.itemBalance(key); });
    }
    // Only rows of items in the master, when not all; the others hold what they did.
    void expectLedger(const BooksModel& model, bool all = true) {
        auto row = store.execute("SELECT * FROM tblStockValuation ORDER BY ZevRef");
        ASSERT_EQ(row.rowCount(), static_cast<qsizetype>(model.ledger().size()));
        for (const BooksModel::Row& expected : model.ledger()) {
            const QString name = expected.bookId + ' ' + expected.reference + ' ' + expected.item;
            EXPECT_EQ(row.text("Reference") + row.text("ItemCode"), expected.reference + expected.item);
            EXPECT_EQ(row.currency(expected.bookId == "P" ? "StockIn" : "StockOut").tenThousandths(),
                      expected.quantity);
            EXPECT_EQ(row.currency(expected.bookId == "P" ? "InPrice" : "OutPrice").tenThousandths(),
                      expected.price);
            if (all || expected.item != "unknown") {
                EXPECT_EQ(row.currency("Balance").tenThousandths(), expected.balance) << qPrintable(name);
                EXPECT_EQ(row.currency("SalesCost").tenThousandths(), expected.salesCost) << qPrintable(name);
            }
            row.moveNext();
        }
    }
    void spoil(const QString& table, const QString& columnName) {
        write(QString("UPDATE %1 SET %2 = %2 + 12345 WHERE %3 % 3 <> 0")
                  .arg(table, columnName, keyOf(store, table)));
    }

    Books books;
};

TEST_P(RandomBooksTest, EveryBalanceIsTheModels) {
    const BooksModel model(books);
    for (int serial = -1; serial < 31; ++serial) {
        const QString sale = QString("s-%1").arg(serial);
        const QString purchase = QString("p-%1").arg(serial);
        EXPECT_EQ(SalesBalance(store, sale).tenThousandths(), model.salesBalance(sale)) << qPrintable(sale);
        EXPECT_EQ(PurchaseBalance(store, purchase).tenThousandths(), model.purchaseBalance(purchase));
        EXPECT_EQ(ServedOnOrder(store, "item3", sale).tenThousandths(), model.servedOnOrder("item3", sale));
    }
    const auto customers = CustomerBalances(store), suppliers = SupplierBalances(store);
    for (const QString& contact : books.contacts + QStringList{"none"}) {
        EXPECT_EQ(customers.of(contact), CustomerBalance(store, contact));
        EXPECT_EQ(suppliers.of(contact), SupplierBalance(store, contact));
        EXPECT_EQ(CustomerBalance(store, contact).tenThousandths(), model.customerBalance(contact));
        EXPECT_EQ(SupplierBalance(store, contact).tenThousandths(), model.supplierBalance(contact));
    }
    for (const QString& item : books.items + QStringList{"unknown", "none"}) {
        EXPECT_EQ(ItemBalance(store, item).tenThousandths(), model.itemBalance(item));
        for (int date = 0; date < 14; ++date)
            EXPECT_EQ(ItemBalanceBetween(store, item, day(date)).tenThousandths(),
                      model.itemBalanceUntil(item, day(date)));
    }
}

TEST_P(RandomBooksTest, StoredBalancesOfOneAndOfAllAreTheModels) {
    const BooksModel model(books);
    for (const bool all : {true, false, true}) {
        for (const char* table : {"tblSalesMaster", "tblPurchaseMaster", "tblItemMaster"})
            spoil(table, "Balance");
        Boxes boxes;
        if (all) {
            RecomputeInventoryBalances(store, Progress::none());
            RecomputePayableBalances(store, Progress::none());
            RecomputeReceivableBalances(store, Progress::none());
        } else {
            for (const auto& document : books.documents)
                (document.bookId == "S" ? UpdateSalesBalance : UpdatePurchaseBalance)(store, document.number,
                                                                                      boxes);
            for (const QString& item : books.items) StoreItemBalance(store, item, boxes);
        }
        EXPECT_EQ(boxes, Boxes());
        expectStoredBalances(model);
    }
}

TEST_P(RandomBooksTest, TheLedgerIsTheModels) {
    const BooksModel model(books);
    const Boxes boxes = runEndOfDay(store);
    EXPECT_FALSE(boxes.isEmpty()) << "the items without a master";
    for (const Box& box : boxes)
        EXPECT_EQ(box.text, "Inventory Balance could not be Updated! Item Not Found!");
    expectLedger(model);
    expectStored("CostPrice", "tblItemMaster", "ItemCode", [&](auto item) { return model.costPrice(item); });
    for (int from = 1; from < 13; from += 3)
        for (int to = 1; to < 13; to += 2) {
            Boxes told;
            const KeyedFigures values = ValuationCosts(store, day(from), day(to), told);
            for (const QString& item : books.items) {
                EXPECT_EQ(values.of(item.toLower()).tenThousandths(),
                          model.valuation(item, day(from), day(to)));
                EXPECT_EQ(ValuationCost(store, day(from), day(to), item, told).tenThousandths(),
                          model.valuation(item, day(from), day(to)));
                EXPECT_EQ(PeriodSalesCost(store, day(from), day(to), item, told).tenThousandths(),
                          model.periodSalesCost(item, day(from), day(to)));
            }
        }
}

TEST_P(RandomBooksTest, RecostingOneItemAndAllGivesTheModelsLedger) {
    const BooksModel model(books);
    runEndOfDay(store);
    for (const bool all : {true, false, true}) {
        spoil("tblStockValuation", "Balance");
        write("UPDATE tblStockValuation SET SalesCost = 7 WHERE BookID = 'S' AND ZevRef % 2 = 0");
        if (all) RecomputeStockValuation(store, Progress::none());
        for (const QString& item : all ? QStringList() : books.items) {
            ComputeStockBalances(store, item);
            ComputeSalesCost(store, item);
        }
        expectLedger(model, false);
    }
}

TEST_P(RandomBooksTest, DeletedDocumentsLeaveTheModelsFigures) {
    runEndOfDay(store);
    for (size_t at = 0; at < books.documents.size(); at += 3) {
        const auto& document = books.documents[at];
        const bool sale = document.bookId == "S";
        RemoveStockValuation(store, document.bookId, document.number);
        write(QString("DELETE FROM %1 WHERE Reference = ?")
                  .arg(sale ? "tblSalesDetails" : "tblPurchaseDetails"),
              {document.number});
        write(QString("DELETE FROM %1 WHERE %2 = ?")
                  .arg(sale ? "tblSalesMaster" : "tblPurchaseMaster", sale ? "RefNo" : "PurchaseNo"),
              {document.number});
    }
    Books left = books;
    left.documents.clear();
    for (size_t at = 0; at < books.documents.size(); ++at)
        if (at % 3 != 0) left.documents.push_back(books.documents[at]);
    const BooksModel model(left);
    RecomputeStockValuation(store, Progress::none());
    expectLedger(model, false);
    RecomputeInventoryBalances(store, Progress::none());
    RecomputePayableBalances(store, Progress::none());
    RecomputeReceivableBalances(store, Progress::none());
    expectStoredBalances(model);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomBooksTest, testing::Range(1U, 9U));
