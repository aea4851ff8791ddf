#include "bench/bare.h"

#include "bench/seconds_of.h"
#include "platform/store/store_error.h"

#include <sqlite3.h>
#include <algorithm>
#include <cstdio>
#include <vector>

namespace bare {
namespace {
struct Finalizer {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Statement = std::unique_ptr<sqlite3_stmt, Finalizer>;

[[noreturn]] void fail(sqlite3* engine, const QByteArray& text) {
    throw StoreError(StoreError::general, QString::fromUtf8(sqlite3_errmsg(engine)) + ": " + text);
}

Statement prepare(sqlite3* engine, const QByteArray& text) {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(engine, text.constData(), -1, &statement, nullptr) != SQLITE_OK)
        fail(engine, text);
    return Statement(statement);
}

void bind(sqlite3_stmt* statement, const QVariantList& values) {
    for (int i = 0; i < values.size(); ++i) {
        const QVariant value = storedValue(values[i]);
        if (value.metaType().id() == QMetaType::QString) {
            const QByteArray text = value.toString().toUtf8();
            sqlite3_bind_text(statement, i + 1, text.constData(), -1, SQLITE_TRANSIENT);
        } else {
            sqlite3_bind_int64(statement, i + 1, value.toLongLong());
        }
    }
}

void readRow(sqlite3_stmt* statement) {
    for (int column = 0; column < sqlite3_column_count(statement); ++column)
        if (sqlite3_column_type(statement, column) == SQLITE_INTEGER)
            sqlite3_column_int64(statement, column);
        else
            sqlite3_column_text(statement, column);
}

void finish(sqlite3* engine, sqlite3_stmt* statement, int result) {
    if (result != SQLITE_DONE) fail(engine, sqlite3_sql(statement));
}

int record(unsigned, void* statements, void* statement, void* text) {
    // A comment stands for the statement of a trigger, which its own statement runs.
    if (static_cast<const char*>(text)[0] == '-') return 0;
    char* expanded = sqlite3_expanded_sql(static_cast<sqlite3_stmt*>(statement));
    static_cast<QByteArrayList*>(statements)->append(expanded);
    sqlite3_free(expanded);
    return 0;
}
}  // namespace

qint64 readAll(sqlite3* engine, const Sql& statement) {
    const Statement prepared = prepare(engine, statement.text.toUtf8());
    bind(prepared.get(), statement.values);
    qint64 rows = 0;
    int result = 0;
    for (; (result = sqlite3_step(prepared.get())) == SQLITE_ROW; ++rows) readRow(prepared.get());
    finish(engine, prepared.get(), result);
    return rows;
}

Recorder::Recorder(sqlite3* engine) : engine_(engine) {
    sqlite3_trace_v2(engine_, SQLITE_TRACE_STMT, record, &statements_);
}

Recorder::~Recorder() { sqlite3_trace_v2(engine_, 0, nullptr, nullptr); }

double replay(sqlite3* engine, const QByteArrayList& statements) {
    std::vector<Statement> prepared;
    for (const QByteArray& text : statements) prepared.push_back(prepare(engine, text));
    return milliseconds([&] {
        for (const Statement& statement : prepared) {
            int result = 0;
            while ((result = sqlite3_step(statement.get())) == SQLITE_ROW) readRow(statement.get());
            sqlite3_reset(statement.get());
            finish(engine, statement.get(), result);
        }
    });
}

double milliseconds(const std::function<void()>& work) { return secondsOf(work) * 1e3; }

double median(const std::function<void()>& work) {
    constexpr int runs = 9;
    work();
    std::vector<double> times;
    for (int run = 0; run < runs; ++run) times.push_back(milliseconds(work));
    std::ranges::nth_element(times, times.begin() + runs / 2);
    return times[runs / 2];
}

void report(const QString& name, double measured, double bareTime) {
    std::printf("%-52s %10.3f ms %10.3f ms  %6.2f\n", qPrintable(name), measured, bareTime,
                measured / bareTime);
    std::fflush(stdout);
}
}  // namespace bare
