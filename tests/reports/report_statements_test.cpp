#include "bench/books_generator.h"
#include "books/balances.h"
#include "books/stock_valuation.h"
#include "platform/progress.h"
#include "reports/every_report.h"
#include "reports/frame/report_run.h"
#include "support/statement_count.h"
#include "support/test_store.h"

#include <QMap>

namespace {
// By report, in costed and balanced books of so many sales. What prints nothing there is left out.
QMap<QString, int> statementsInBooksOf(qint64 sales) {
    TestStore file;
    Connection& store = file.connection();
    generateBooks(store, sales);
    RecomputeStockValuation(store, Progress::none());
    RecomputeInventoryBalances(store, Progress::none());
    QMap<QString, int> statements;
    for (const KnownReport& report : everyReport()) {
        bool prints = false;
        const int asked = statementsOf(store, [&] {
            auto parts = report.make(store);
            prints = parts.has_value();
            if (prints) runReport(*parts);
        });
        if (prints) statements[report.name] = asked;
    }
    return statements;
}
}  // namespace

// A report that asks the store for each of its lines takes a minute in the books of a few years. One that
// costs the ledger first begins a new unit whenever its time is up, on a slow machine more often.
TEST(EveryReport, AsksTheStoreAFixedNumberOfTimes) {
    const QMap<QString, int> few = statementsInBooksOf(1000), many = statementsInBooksOf(20000);
    EXPECT_GE(few.size(), 10);
    EXPECT_EQ(few.keys(), many.keys());
    for (const QString& report : few.keys())
        EXPECT_LE(many[report], few[report] + 50) << report.toStdString();
}
