#pragma once
#include "platform/store/connection.h"
#include "platform/store/transaction.h"

#include <optional>

// Steps whose errors are passed over. Each answers false after a failure, which then has changed nothing; a
// busy store is thrown all the same, because there the answer is to wait and try again.

// To the log zevrin.books, for whoever looks for the reason later.
void logPassedOver(const StoreError& error);

template <class Step>
bool passOverRead(Step step) {
    try {
        step();
        return true;
    } catch (const StoreError& error) {
        if (error.number() == StoreError::busy) throw;
        logPassedOver(error);
        return false;
    }
}

// A write stands in a unit of its own, so that a refused one leaves an enclosing unit usable.
template <class Step>
bool passOverWrite(Connection& store, Step step) {
    return passOverRead([&] {
        Transaction unit(store);
        step();
        unit.commit();
    });
}

// The engine undoes a single statement that it refuses by itself: it needs no unit of its own. The rows that
// it changed, or nothing after a failure.
inline std::optional<qint64> passOverStatement(Connection& store, const Sql& statement) {
    std::optional<qint64> changed;
    passOverRead([&] { changed = store.run(statement); });
    return changed;
}
