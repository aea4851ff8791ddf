#include "books/stock_valuation.h"
#include "platform/clock.h"
#include "reports/frame/report_output.h"
#include "reports/frame/report_run.h"
#include "reports/golden.h"
#include "reports/journals/transaction_reports.h"
#include "reports/profitability/profitability_figures.h"
#include "support/statement_count.h"
#include "support/test_store.h"

namespace {
void post(Connection& store, const char* book, const DocumentRow& document) {
    for (const LineRow& line : document.lines)
        AddStockValuation(store, book, document.number, document.contactId, line.item, document.date,
                          line.quantity, line.price);
}

void pay(Connection& store, const char* sale, double percent, double granted) {
    insertRow(store, "tblReceiptDetails", "PayCode, Reference, Discount, DiscountAmount",
              {5, sale, bound(amount(percent)), bound(amount(granted))});
}

// Three sales: one that two payments took something off, one that nobody has paid or costed, of an item that
// is in no list, and one of nothing that a payment took something off all the same.
void trade(Connection& store) {
    addContact(store, {"C1", "Reyes Trading"});
    addItem(store, {.code = "NAIL", .description = "Common nail"});
    const DocumentRow sales[] = {
        {"03-01",
         QDate(2026, 3, 5),
         "C1",
         {{"NAIL", amount(8), amount(100), amount(10)}, {"nut", amount(3), amount(7)}}},
        {"03-02", QDate(2026, 3, 25), "C1", {{"GONE", amount(2.5), amount(10.01)}}},
        {"03-03", QDate(2026, 3, 5), "C1", {{"NAIL", {}, amount(100)}}}};
    for (const DocumentRow& sale : sales) addSale(store, sale);
    post(store, "P", {"P1", QDate(2026, 3, 1), "C1", {{"NAIL", amount(10), amount(60.0001)}}});
    post(store, "S", sales[0]);
    store.run("UPDATE tblSalesMaster SET Remarks = 'For the mill' WHERE RefNo = '03-01'");
    pay(store, "03-01", 5, 40);
    pay(store, "03-01", 50, 20.5);
    pay(store, "03-03", 5, 1);
}

QString printed(Connection& store, const char* option, bool allDays = true) {
    auto report = transactionReport(store, {.kind = "PROFIT",
                                            .selection = option,
                                            .allDays = allDays,
                                            .from = "03/01/2026",
                                            .to = "03/05/2026"});
    return reportOutput::plainText(runReport(*report));
}

constexpr const char* options[] = {"optSummary", "optDetailed"};
}  // namespace

TEST(Profitability, OfAPeriodAndOfAllDays) {
    TestStore store;
    trade(store.connection());
    Clock::freeze(QDateTime(QDate(2026, 4, 9), QTime(14, 5, 6)));
    QString text;
    for (const char* option : options)
        for (const bool allDays : {false, true}) text += printed(store.connection(), option, allDays);
    Clock::unfreeze();
    compareWithGolden("profitability.txt", text);
}

// What a deletion left behind in the ledger is costed before the profit is reckoned.
TEST(Profitability, RestsOnALedgerThatIsCostedAnew) {
    TestStore store;
    trade(store.connection());
    store.connection().run("UPDATE tblStockValuation SET SalesCost = 990000 WHERE ItemCode = 'NAIL'");
    const QString text = printed(store.connection(), "optSummary");
    EXPECT_TRUE(text.contains("480.00")) << qPrintable(text);
    EXPECT_FALSE(text.contains("99.00")) << qPrintable(text);
}

TEST(Profitability, AsksTheStoreAsOftenForOneSaleAsForMany) {
    TestStore store;
    trade(store.connection());
    for (const char* option : options) {
        const auto run = [&] { printed(store.connection(), option); };
        run();
        const int few = statementsOf(store.connection(), run);
        for (int number = 0; number < 40; ++number)
            addSale(store.connection(), {QString("%1-%2").arg(option).arg(number),
                                         QDate(2026, 3, 2),
                                         "C1",
                                         {{"NAIL", amount(1), amount(1)}}});
        EXPECT_EQ(statementsOf(store.connection(), run), few) << option;
    }
}

TEST(Profitability, ADivisorOfZeroGivesZero) {
    EXPECT_EQ(percentOfTotal(amount(5), {}), Currency());
    EXPECT_EQ(percentOfTotal(amount(20), amount(300)), amount(6.6667));
    EXPECT_EQ(perUnit(amount(5), {}), Currency());
    EXPECT_EQ(perUnit(amount(10), amount(-4)), amount(-2.5));
}
