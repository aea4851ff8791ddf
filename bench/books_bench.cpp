// Measures the long passes of the books, each beside a bare loop on the engine's handle in the same run: the
// counter "ratio" is what the limit beside it speaks of, and "cpu_ratio" the same in processor time. By
// itself it runs the smallest size; the others by hand:  books_bench --benchmark_filter=/20000/
#include "bench/bare_passes.h"
#include "bench/books_generator.h"
#include "bench/seconds_of.h"
#include "books/balances.h"
#include "books/end_of_day.h"
#include "books/stock_valuation.h"
#include "foundation/schema.h"
#include "foundation/session.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <ctime>

namespace {
QString folder() {
    static const QTemporaryDir made;
    return made.path();
}

using Pass = std::function<void(Connection&)>;

void onCopy(const QString& from, const QString& to, const Pass& pass) {
    QFile::remove(to);
    QFile::copy(from, to);
    Connection store;
    store.open(to, storePassword);
    pass(store);
}

// The books of one size, made once in a run.
QString booksOf(qint64 size) {
    const QString path = folder() + QString("/books-%1.mdb").arg(size);
    if (QFile::exists(path)) return path;
    makeDeliveredStore(path);
    Connection store;
    store.open(path, storePassword);
    generateBooks(store, size);
    return path;
}

// The same books after a pass, made once in a run, too.
QString booksAfter(const char* name, const Pass& pass, qint64 size) {
    const QString path = folder() + QString("/books-%1-%2.mdb").arg(name).arg(size);
    if (!QFile::exists(path)) onCopy(booksOf(size), path, pass);
    return path;
}

// What this program has written to files so far.
qint64 bytesWritten() {
    QFile file("/proc/self/io");
    if (!file.open(QFile::ReadOnly)) return 0;
    for (const QByteArray& line : file.readAll().split('\n'))
        if (line.startsWith("wchar:")) return line.mid(6).trimmed().toLongLong();
    return 0;
}

struct Cost {
    double seconds = 0;
    double ofProcessor = 0;  // which other work on the machine does not change
    qint64 bytes = 0;
};

void runOnCopy(const QString& books, const Pass& pass, Cost& cost) {
    onCopy(books, folder() + "/copy.mdb", [&](Connection& store) {
        cost.bytes -= bytesWritten();
        const std::clock_t began = std::clock();
        cost.seconds += secondsOf([&] { pass(store); });
        cost.ofProcessor += static_cast<double>(std::clock() - began) / CLOCKS_PER_SEC;
        cost.bytes += bytesWritten();
    });
}

// Each pass on a fresh copy of its books, in turn.
void measure(benchmark::State& state, const QString& bareBooks, const Pass& bare, const QString& books,
             const Pass& pass) {
    Cost own, bareCost;
    for (auto turn : state) {
        runOnCopy(bareBooks, bare, bareCost);
        const double before = own.seconds;
        runOnCopy(books, pass, own);
        state.SetIterationTime(own.seconds - before);
    }
    const auto turns = static_cast<double>(state.iterations());
    state.counters["ms"] = own.seconds * 1000 / turns;
    state.counters["bare_ms"] = bareCost.seconds * 1000 / turns;
    state.counters["ratio"] = own.seconds / bareCost.seconds;
    state.counters["cpu_ms"] = own.ofProcessor * 1000 / turns;
    state.counters["cpu_ratio"] = own.ofProcessor / bareCost.ofProcessor;
    state.counters["MB"] = static_cast<double>(own.bytes) / 1e6 / turns;
    state.counters["bare_MB"] = static_cast<double>(bareCost.bytes) / 1e6 / turns;
    state.counters["store_MB"] = static_cast<double>(QFileInfo(books).size()) / 1e6;
}

void revalue(Connection& store) { RecomputeStockValuation(store, Progress::none()); }
void readBare(Connection& store) { bareRead(store.handle()); }
void revalueBare(Connection& store) { bareRevaluation(store.handle()); }

void recompute(Connection& store) {
    RecomputeInventoryBalances(store, Progress::none());
    RecomputePayableBalances(store, Progress::none());
    RecomputeReceivableBalances(store, Progress::none());
}
void recomputeBare(Connection& store) { bareBalances(store.handle()); }

void endOfDay(Connection& store) {
    const Boxes boxes = postAndCostAll(store);
    if (!boxes.isEmpty()) qFatal("%s", qPrintable(boxes.first().text));
}
void endOfDayBare(Connection& store) { bareEndOfDay(store.handle()); }
void queueDocuments(Connection& store) {
    revalue(store);
    queueOnePercent(store);
}

void revaluation(benchmark::State& state) {
    const QString books = booksOf(state.range(0));
    measure(state, books, revalueBare, books, revalue);
}
void revaluationUnchanged(benchmark::State& state) {
    const qint64 size = state.range(0);
    const QString books = booksAfter("valued", revalue, size);
    measure(state, books, readBare, books, revalue);
}
void recomputeBalances(benchmark::State& state) {
    const QString books = booksOf(state.range(0));
    measure(state, books, recomputeBare, books, recompute);
}
void recomputeBalancesUnchanged(benchmark::State& state) {
    const QString books = booksAfter("balanced", recompute, state.range(0));
    measure(state, books, recomputeBare, books, recompute);
}
void endOfDayOnePercent(benchmark::State& state) {
    const QString books = booksAfter("queued", queueDocuments, state.range(0));
    measure(state, books, endOfDayBare, books, endOfDay);
}

void sizes(benchmark::internal::Benchmark* bench) {
    bench->Arg(1000)->Arg(20000)->Arg(200000)->UseManualTime()->Iterations(3)->Unit(benchmark::kMillisecond);
}

BENCHMARK(revaluation)->Name("revaluation (limit 1.5)")->Apply(sizes);
BENCHMARK(revaluationUnchanged)->Name("revaluation, nothing changed, to the read (limit 1.5)")->Apply(sizes);
BENCHMARK(recomputeBalances)->Name("re-compute balances (limit 1.2)")->Apply(sizes);
BENCHMARK(recomputeBalancesUnchanged)->Name("re-compute balances, nothing changed (limit 1.2)")->Apply(sizes);
BENCHMARK(endOfDayOnePercent)->Name("end of day of 1 % (limit 1.5)")->Apply(sizes);
}  // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    std::vector<char*> arguments(argv, argv + argc);
    char smallest[] = "--benchmark_filter=/1000/";
    if (argc == 1) arguments.push_back(smallest);
    int count = static_cast<int>(arguments.size());
    arguments.push_back(nullptr);
    benchmark::Initialize(&count, arguments.data());
    benchmark::RunSpecifiedBenchmarks();
}
