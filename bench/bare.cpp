#include "bench/bare.h"

#include "bench/seconds_of.h"
#include "platform/store/store_error.h"

#include <sqlite3.h>
#include <algorithm>
#include <cstdio>
#include <utility>

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

QByteArray expanded(sqlite3_stmt* statement) {
    char* const text = sqlite3_expanded_sql(statement);
    const QByteArray copy(text);
    sqlite3_free(text);
    return copy;
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

Recorder::Recorder(sqlite3* engine) : engine_(engine), changed_(sqlite3_total_changes(engine)) {
    sqlite3_trace_v2(engine_, SQLITE_TRACE_STMT | SQLITE_TRACE_PROFILE, &Recorder::record, this);
}

int Recorder::record(unsigned event, void* recorder, void* statement, void* text) {
    auto* const self = static_cast<Recorder*>(recorder);
    auto* const traced = static_cast<sqlite3_stmt*>(statement);
    if (event == SQLITE_TRACE_STMT)
        self->began(traced, static_cast<const char*>(text));
    else
        self->ended(traced);
    return 0;
}

// A comment stands for the statement of a trigger, which its own statement runs.
void Recorder::began(sqlite3_stmt* statement, const char* text) {
    if (text[0] != '-') statements_ += expanded(statement);
}

void Recorder::ended(sqlite3_stmt* statement) {
    const int changed = sqlite3_total_changes(engine_);
    if (std::exchange(changed_, changed) != changed) changes_ += expanded(statement);
}

Recorder::~Recorder() { sqlite3_trace_v2(engine_, 0, nullptr, nullptr); }

QByteArrayList asOneUnit(const QByteArrayList& changes) {
    QByteArrayList unit{"BEGIN IMMEDIATE"};
    QHash<QByteArray, qsizetype> inserts;  // by all that stands before the values
    for (const QByteArray& change : changes) {
        const qsizetype values = change.indexOf(" VALUES (");
        const auto earlier = inserts.constFind(change.left(values));
        if (values >= 0 && earlier != inserts.constEnd()) {
            unit[*earlier] += ", " + change.mid(values + 8);
            continue;
        }
        if (values >= 0) inserts[change.left(values)] = unit.size();
        unit += change;
    }
    return unit << "COMMIT";
}

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

double medianOf(std::vector<double> times) {
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::ranges::nth_element(times, middle);
    return *middle;
}

std::pair<double, double> medians(const std::function<void()>& measured,
                                  const std::function<void()>& bareWork) {
    constexpr int runs = 9;
    std::vector<double> times, bareTimes;
    for (int run = 0; run <= runs; ++run) {
        times.push_back(milliseconds(measured));
        bareTimes.push_back(milliseconds(bareWork));
        if (run == 0) times.clear(), bareTimes.clear();
    }
    return {medianOf(times), medianOf(bareTimes)};
}

double median(const std::function<void()>& work) {
    return medians(work, [] {}).first;
}

void report(const QString& name, double measured, double bareTime) {
    std::printf("%-52s %10.3f ms %10.3f ms  %6.2f\n", qPrintable(name), measured, bareTime,
                measured / bareTime);
    std::fflush(stdout);
}
}  // namespace bare
