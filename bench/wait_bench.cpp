// How long another workstation's save waits beside a long pass: three savers, each with a connection of its
// own, against each pass of the books.
//
//     wait_bench [documents in the store = 20000]
#include "bench/books_generator.h"
#include "books/balances.h"
#include "books/end_of_day.h"
#include "books/stock_valuation.h"
#include "foundation/schema.h"
#include "foundation/session.h"
#include "platform/store/transaction.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QThread>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <thread>
#include <vector>

namespace {
// About what a save of five lines writes.
void save(Connection& store, int saver, int number) {
    Transaction unit(store);
    for (int line = 0; line < 5; ++line)
        store.run({"INSERT INTO tblSalesDetails (Reference, ItemID, Served) VALUES (?, ?, 0)",
                   {QString("%1-%2").arg(saver).arg(number), QString("IT%1").arg(line, 6, 10, QChar(u'0'))}});
    unit.commit();
}

// The milliseconds of each save until the pass is over.
std::vector<qint64> saveUntil(const std::atomic<bool>& over, const QString& path, int saver) {
    Connection store;
    store.open(path, storePassword);
    std::vector<qint64> waits;
    for (int number = 0; !over; ++number) {
        QElapsedTimer timer;
        timer.start();
        save(store, saver, number);
        waits.push_back(timer.elapsed());
        QThread::msleep(30);
    }
    return waits;
}

void measure(const char* name, const QString& path, const std::function<void(Connection&)>& pass) {
    constexpr int savers = 3;
    std::atomic<bool> over = false;
    std::vector<qint64> waits[savers];
    std::vector<std::thread> threads;
    for (int saver = 0; saver < savers; ++saver)
        threads.emplace_back([&, saver] { waits[saver] = saveUntil(over, path, saver); });
    Connection store;
    store.open(path, storePassword);
    QElapsedTimer timer;
    timer.start();
    pass(store);
    const qint64 took = timer.elapsed();
    over = true;
    for (std::thread& thread : threads) thread.join();
    std::vector<qint64> all;
    for (const auto& some : waits) all.insert(all.end(), some.begin(), some.end());
    std::ranges::sort(all);
    std::printf("%-24s %6lld ms  %5zu saves  median %4lld ms  99 %% %4lld ms  longest %4lld ms (limit 300)\n",
                name, took, all.size(), all[all.size() / 2], all[all.size() * 99 / 100], all.back());
    std::fflush(stdout);
}
}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder;
    const QString path = folder.filePath(storeFileName);
    makeDeliveredStore(path);
    Connection store;
    store.open(path, storePassword);
    generateBooks(store, argc > 1 ? atoll(argv[1]) : 20000);
    const auto revalue = [](Connection& in) { RecomputeStockValuation(in, Progress::none()); };
    measure("revaluation", path, revalue);
    measure("re-compute balances", path, [](Connection& in) {
        RecomputeInventoryBalances(in, Progress::none());
        RecomputePayableBalances(in, Progress::none());
        RecomputeReceivableBalances(in, Progress::none());
    });
    queueOnePercent(store);
    measure("end of day of 1 %", path, [](Connection& in) { postAndCostAll(in); });
}
