// The reports that rest on the ledger, their figures without pages, against their own reads on the driver's
// handle (limit: twice), and how many statements each takes: as many for 1,000 documents as for 20,000.
//
//     ledger_report_bench [documents = 1000] [documents = 20000]
#include "bench/bare.h"
#include "bench/books_generator.h"
#include "books/stock_valuation.h"
#include "foundation/schema.h"
#include "foundation/session.h"
#include "reports/inventory/frmPrintInventory.h"
#include "reports/inventory/prtStockCard.h"
#include "reports/journals/transaction_reports.h"
#include "reports/lists/prtContactList.h"

#include <QApplication>
#include <QTemporaryDir>

namespace {
using Run = std::function<std::optional<ReportJobParts>()>;

// Every line's figures, as its event gives them.
void reckon(const Run& run) {
    const std::optional<ReportJobParts> report = run();
    if (!report) qFatal("The report has no rows.");
    const ReportSection* line = report->layout.section(SectionKind::Detail);
    const FormatEvent event = report->events.value(on(SectionKind::Detail));
    while (report->rows->next()) {
        SectionFields fields(*line);
        event(*report->rows, fields);
    }
}

QByteArrayList readsOf(const Run& run) {
    const bare::Recorder recorder(StoreConnection().handle());
    reckon(run);
    QByteArrayList reads;
    for (const QByteArray& statement : recorder.statements())
        if (statement.startsWith("SELECT")) reads += statement;
    return reads;
}

void measure(const QString& name, const Run& run) {
    const QByteArrayList reads = readsOf(run);
    bare::report(QString("%1 (%2 reads)").arg(name).arg(reads.size()), bare::median([&] { reckon(run); }),
                 bare::median([&] { bare::replay(StoreConnection().handle(), reads); }));
}

void measureAll(qint64 documents) {
    const QTemporaryDir folder;
    Connection& store = StoreConnection();
    makeDeliveredStore(folder.filePath(storeFileName));
    store.open(folder.filePath(storeFileName), storePassword);
    generateBooks(store, documents);
    RecomputeStockValuation(store, Progress::none());
    const QString busiest = store
                                .execute(
                                    "SELECT ItemCode FROM tblStockValuation GROUP BY ItemCode ORDER BY "
                                    "COUNT(*) DESC, ItemCode LIMIT 1")
                                .textAt(0);
    printf("%lld documents\n", static_cast<long long>(documents));
    for (const char* option : {"optSummary", "optDetailed"})
        measure(QString("profitability ") + option, [&] {
            return transactionReport(store, {.kind = "PROFIT", .selection = option, .allDays = true});
        });
    measure("item list", [&] { return inventoryReport(store, {.allDays = true}); });
    measure("contact list", [&] {
        return contactListReport(store, "SELECT * FROM tblContactMaster ORDER BY ContactName", "");
    });
    measure("stock card", [&] { return stockCardReport(store, {.allDays = true, .item = busiest}); });
    store.close();
}
}  // namespace

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    registerSchema();
    session().CurrentUserCode = "ADMIN";
    const auto size = [&](int place, qint64 usual) { return argc > place ? atoll(argv[place]) : usual; };
    measureAll(size(1, 1000));
    measureAll(size(2, 20000));
    return 0;
}
