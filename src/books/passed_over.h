#pragma once
#include "platform/store/connection.h"
#include "platform/store/transaction.h"

// Steps whose errors are passed over. Each answers false after a failure, which then has changed nothing; a
// busy store is thrown all the same, because there the answer is to wait and try again.

template <class Step>
bool passOverRead(Step step) {
    try {
        step();
        return true;
    } catch (const StoreError& error) {
        if (error.number() == StoreError::busy) throw;
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
