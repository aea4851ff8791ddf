#include "books/stock_valuation.h"

#include "books/books_test.h"

#include <limits>

namespace {
const Currency most = Currency::fromTenThousandths(std::numeric_limits<qint64>::max());

// A row of the ledger: the day, in at a price ("P") or out ("S").
struct Row {
    int day;
    char book;
    double quantity;
    double price = 0;
};

struct CostingCase {
    const char* name;
    std::vector<Row> rows;   // as they were entered
    const char* balances;    // by day, purchases first
    const char* salesCosts;  // of the sales, by day
    double value;            // of what is on hand
};

const CostingCase costingCases[] = {
    {"first in, first out; the rest of the last sale costs nothing",
     {{1, 'P', 10, 5}, {2, 'P', 10, 6}, {3, 'S', 4}, {4, 'S', 8}, {5, 'S', 12}},
     "10 20 16 8 -4",
     "20 42 48",
     0},
    {"a later purchase covers it; the same day's comes first",
     {{1, 'P', 10, 5}, {2, 'S', 4}, {2, 'P', 10, 6}, {3, 'S', 20}, {9, 'P', 8, 7}},
     "10 20 16 -4 4",
     "20 118",
     28},
    {"layers of nothing and less are skipped",
     {{1, 'P', 0, 9}, {2, 'P', -4, 9}, {3, 'P', 5, 3}, {4, 'S', 2}},
     "0 -4 1 -1",
     "6",
     0},
    {"a sale of less than nothing counts by its amount and costs nothing",
     {{1, 'P', 5, 2}, {2, 'S', -3}, {3, 'S', 1}},
     "5 2 1",
     "0 2",
     2},
    {"newest layers are on hand, then older ones",
     {{1, 'P', 10, 5}, {2, 'P', 10, 6}, {3, 'S', 5}},
     "10 20 15",
     "25",
     85},
    {"parts of a centavo round once for each layer",
     {{1, 'P', 0.3333, 0.3335}, {2, 'P', 0.3333, 0.3335}, {3, 'S', 0.5}},
     "0.3333 0.6666 0.1666",
     "0.1668",
     0.0556},
};

QString plain(const QString& tenThousandths) {
    QStringList texts;
    for (const QString& count : tenThousandths.split(u' ', Qt::SkipEmptyParts))
        texts += Currency::fromTenThousandths(count.toLongLong()).toPlainText();
    return texts.join(u' ');
}
}  // namespace

class StockValuationTest : public BooksTest {
  protected:
    void addRow(const Row& row, const QString& item = "A") {
        AddStockValuation(store, QString(QChar(row.book)), QString("D%1").arg(++documents_), "C1", item,
                          day(row.day), amount(row.quantity), amount(row.price));
    }
    void addRows(const CostingCase& books) {
        write("DELETE FROM tblStockValuation");
        for (const Row& row : books.rows) addRow(row);
    }
    QString balances(const QString& item = "A") {
        return plain(
            column("SELECT Balance AS v FROM tblStockValuation WHERE ItemCode = ? ORDER BY TransDate, "
                   "BookID, ZevRef",
                   {item}));
    }
    QString salesCosts(const QString& item = "A") {
        return plain(
            column("SELECT SalesCost AS v FROM tblStockValuation WHERE ItemCode = ? AND BookID = 'S' ORDER "
                   "BY TransDate, ZevRef",
                   {item}));
    }
    int writesOf(const std::function<void()>& pass) {
        int writes = 0;
        Connection::setStatementHook(
            [&](const QString& text) { writes += text.startsWith("UPDATE tblStockValuation"); });
        pass();
        Connection::setStatementHook({});
        return writes;
    }

  private:
    int documents_ = 0;
};

TEST_F(StockValuationTest, OneItemAndAllAreCostedFirstInFirstOut) {
    Boxes boxes;
    addItems({"A"});
    for (const CostingCase& books : costingCases) {
        addRows(books);
        ComputeStockBalances(store, "a");
        EXPECT_EQ(balances(), books.balances) << books.name;
        EXPECT_EQ(column("SELECT SUM(SalesCost) AS v FROM tblStockValuation"), "0") << books.name;
        ComputeSalesCost(store, "a");
        EXPECT_EQ(salesCosts(), books.salesCosts) << books.name;
        EXPECT_EQ(ValuationCost(store, day(1), day(9), "A", boxes), amount(books.value)) << books.name;
        write("UPDATE tblStockValuation SET Balance = 0, SalesCost = 0");
        RecomputeStockValuation(store, Progress::none());
        EXPECT_EQ(balances(), books.balances) << books.name;
        EXPECT_EQ(salesCosts(), books.salesCosts) << books.name;
    }
}

TEST_F(StockValuationTest, OnlyRowsThatChangeAreWritten) {
    addItems({"A"});
    addRows(costingCases[0]);
    EXPECT_EQ(writesOf([&] { RecomputeStockValuation(store, Progress::none()); }), 5);
    EXPECT_EQ(writesOf([&] {
                  RecomputeStockValuation(store, Progress::none());
                  ComputeStockBalances(store, "A");
                  ComputeSalesCost(store, "A");
              }),
              0);
    addRow({9, 'P', 5, 7});
    EXPECT_EQ(writesOf([&] { RecomputeStockValuation(store, Progress::none()); }), 2)
        << "the new row, the last sale";
}

TEST_F(StockValuationTest, RowsOfAnItemThatHasGoneKeepTheirFigures) {
    addItems({"A"});
    addRow({1, 'P', 5, 2}, "gone");
    addRow({1, 'P', 5, 2}, "A");
    RecomputeStockValuation(store, Progress::none());
    EXPECT_EQ(balances("gone"), "0");
    EXPECT_EQ(balances("A"), "5");
}

// The rows before a figure beyond the range have theirs, by both ways alike; nothing else is stopped by it.
TEST_F(StockValuationTest, AnOverflowEndsOnePassOverOneItem) {
    for (const char* item : {"A", "B", "C", "D"}) {
        addItems({item});
        addRow({1, 'P', 2, 3}, item);
        addRow({2, 'S', 1}, item);
    }
    AddStockValuation(store, "P", "big", "C1", "B", day(3), most, amount(2));
    AddStockValuation(store, "P", "big", "C1", "C", day(3), amount(9), most);
    AddStockValuation(store, "S", "big", "C1", "C", day(3), amount(3), amount(2));
    const auto expectFigures = [&] {
        EXPECT_EQ(balances("A") + '/' + balances("B") + '/' + balances("C") + '/' + balances("D"),
                  "2 1/2 1 0/2 1 10 7/2 1");
        EXPECT_EQ(salesCosts("A") + '/' + salesCosts("B") + '/' + salesCosts("C") + '/' + salesCosts("D"),
                  "3/3/3 0/3");
    };
    RecomputeStockValuation(store, Progress::none());
    expectFigures();
    write("UPDATE tblStockValuation SET Balance = 0, SalesCost = 0");
    for (const char* item : {"A", "D"}) {
        ComputeStockBalances(store, item);
        ComputeSalesCost(store, item);
    }
    EXPECT_THROW(ComputeStockBalances(store, "B"), OverflowError);
    ComputeSalesCost(store, "B");
    ComputeStockBalances(store, "C");
    EXPECT_THROW(ComputeSalesCost(store, "C"), OverflowError);
    expectFigures();
}

TEST_F(StockValuationTest, AValueBeyondTheRangeAndAPeriodWithoutRowsAreTold) {
    AddStockValuation(store, "P", "big", "C1", "A", day(1), amount(2), most);
    write("UPDATE tblStockValuation SET Balance = 20000");
    Boxes boxes;
    EXPECT_EQ(ValuationCost(store, day(1), day(1), "A", boxes), Currency());
    EXPECT_EQ(ValuationCosts(store, day(1), day(1), boxes).of(QString("A")), Currency());
    EXPECT_EQ(PeriodSalesCost(store, day(2), day(9), "A", boxes), Currency());
    const Box overflow = exclamation("Error!", "Overflow");
    EXPECT_EQ(boxes, (Boxes{overflow, overflow, exclamation("Error!", "Invalid use of Null")}));
}
