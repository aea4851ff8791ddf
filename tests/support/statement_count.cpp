#include "support/statement_count.h"

#include "platform/store/connection.h"
#include "platform/store/place.h"
#include "platform/store/server_link.h"

#include <sqlite3.h>

static int countOne(unsigned, void* count, void*, void*) {
    ++*static_cast<int*>(count);
    return 0;
}

int statementsOf(Connection& store, const std::function<void()>& work) {
    int count = 0;
    if (isOnServer(store)) {
        tablesOf(store);  // which it reads once
        const qint64 before = ServerLink::roundTrips();
        work();
        return static_cast<int>(ServerLink::roundTrips() - before);
    }
    sqlite3_trace_v2(store.handle(), SQLITE_TRACE_STMT, countOne, &count);
    work();
    sqlite3_trace_v2(store.handle(), 0, nullptr, nullptr);
    return count;
}
