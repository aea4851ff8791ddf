// The sales reports of a period over books of two sizes, against the same statements stepped on the driver's
// handle: their figures (limit 2), their whole pages, and what share of those the first page takes (limit
// 0.05).
//
//     period_report_bench [documents ... = 1000 20000]
#include "bench/bare.h"
#include "bench/books_generator.h"
#include "foundation/schema.h"
#include "foundation/session.h"
#include "reports/frame/report_run.h"
#include "reports/journals/transaction_reports.h"

#include <QGuiApplication>
#include <QTemporaryDir>
#include <cstdio>

namespace {
using Made = std::optional<ReportJobParts>;

Made salesReport(const QString& option) {
    return transactionReport(StoreConnection(), {.kind = "S", .selection = option, .allDays = true});
}

// Every figure of every line, and nothing laid out.
void computeFigures(const ReportJobParts& report) {
    const FormatEvent line = report.events.value(on(SectionKind::Detail));
    while (report.rows->next()) {
        SectionFields fields(*report.layout.section(SectionKind::Detail));
        if (line) line(*report.rows, fields);
    }
}

QByteArrayList statementsOf(const QString& option) {
    const bare::Recorder recorder(StoreConnection().handle());
    computeFigures(*salesReport(option));
    return recorder.statements();
}

void measure(const QString& option, qint64 documents) {
    const QByteArrayList statements = statementsOf(option);
    const double own = bare::median([&] { computeFigures(*salesReport(option)); });
    const double bareTime = bare::median([&] { bare::replay(StoreConnection().handle(), statements); });
    const QString name = QString("%1, %2 sales").arg(option).arg(documents);
    bare::report(name + ": figures", own, bareTime);

    const Made report = salesReport(option);
    ReportRun run(report->layout, *report->rows, report->events, report->texts);
    const double first = bare::milliseconds([&] { run.layOutPage(); });
    const double rest = bare::milliseconds([&] {
        while (run.layOutPage()) {
        }
    });
    bare::report(name + ": all pages", own + first + rest, bareTime);
    std::printf("%lld statements, %zu pages, the first took %.3f of them all\n",
                static_cast<long long>(statements.size()), run.pages().pages.size(), first / (first + rest));
}

void measureBooks(qint64 documents) {
    const QTemporaryDir folder;
    makeDeliveredStore(folder.filePath("bench.mdb"));
    StoreConnection().open(folder.filePath("bench.mdb"), storePassword);
    generateBooks(StoreConnection(), documents);
    StoreConnection().run("UPDATE tblReceiptDetails SET Discount = 50000 WHERE ZevRef % 3 = 0");
    for (const char* option : {"optSummary", "optDetailed"}) measure(option, documents);
    StoreConnection().close();
}
}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    registerSchema();
    QStringList sizes = QCoreApplication::arguments().mid(1);
    if (sizes.isEmpty()) sizes = QStringList{"1000", "20000"};
    for (const QString& size : sizes) measureBooks(size.toLongLong());
}
