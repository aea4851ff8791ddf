#pragma once
#include "books/passed_over.h"
#include "platform/progress_scope.h"
#include "platform/store/sql.h"

#include <QElapsedTimer>
#include <QThread>
#include <optional>

// A pass over the whole books runs in units, each a transaction of its own: it reads and writes under one
// lock, so that no figure rests on stale rows, and lets other workstations in after a quarter of a second at
// most. A unit stops taking work early enough to leave time for its commit.
class UnitClock {
  public:
    UnitClock() { timer_.start(); }
    bool isOver() const { return timer_.elapsed() >= workMs; }
    bool isHalfOver() const { return timer_.elapsed() >= workMs / 2; }

  private:
    static constexpr qint64 workMs = 120;
    QElapsedTimer timer_;
};

// How far a pass has come through the keys of a table, in their order.
class KeyWalk {
  public:
    KeyWalk(const char* table, const char* key) : table_(table), key_(key) {}
    qint64 done() const { return done_; }
    void pass(QByteArrayView key) {
        if (!last_) last_.emplace();
        last_->resize(0);  // keeps its room
        last_->append(key);
        ++done_;
    }
    // The WHERE clause for the keys still to come, in this column, of the rows that the filter lets through.
    Sql clause(const QString& column, const QString& filter = {}) const {
        QStringList conditions;
        if (!filter.isEmpty()) conditions += filter;
        if (last_) conditions += column + " > ?";
        if (conditions.isEmpty()) return {};
        return {" WHERE " + conditions.join(" AND "),
                last_ ? QVariantList{QString::fromUtf8(*last_)} : QVariantList()};
    }
    std::optional<QString> next(Connection& store) const {
        const Recordset row = store.execute(Sql(QString("SELECT %1 AS NextKey FROM %2").arg(key_, table_)) +
                                            clause(key_) + Sql(QString(" ORDER BY %1 LIMIT 1").arg(key_)));
        return row.eof() ? std::nullopt : std::optional(row.text("NextKey"));
    }

  private:
    const char* table_;
    const char* key_;
    std::optional<QByteArray> last_;
    qint64 done_ = 0;
};

// The breath between two units, in which other workstations take the store: they look for it every two
// milliseconds. Within an outer unit nobody could come in, and nobody is waited for.
inline void letOthersIn(const Connection& store) {
    if (!store.inTransaction()) QThread::msleep(8);
}

// Runs the step again and again, each time in a unit of its own, until it answers that no work is left.
template <class Step>
void inUnits(Connection& store, Step step) {
    for (bool more = true; more;) {
        const UnitClock clock;
        Transaction unit(store, Turn::Last);
        more = step(clock);
        unit.commit();
        if (more) letOthersIn(store);
    }
}

// Runs a pass to its end. It offers
//   bool readOn(const UnitClock&)  works until the clock is over; false when no key is left
//   bool passNext()                deals with the key at which readOn failed; false when there is none
//   void tell(Progress&)           shows how far it came; called in each unit
template <class Pass>
void runInUnits(Connection& store, Pass& pass, Progress& progress) {
    inUnits(store, [&](const UnitClock& clock) {
        bool more = true;
        if (!passOverRead([&] { more = pass.readOn(clock); })) more = pass.passNext();
        pass.tell(progress);
        return more;
    });
}
