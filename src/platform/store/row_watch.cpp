#include "platform/store/row_watch.h"

#include "platform/store/connection.h"
#include "platform/store/place.h"

#include <sqlite3.h>
#include <QList>

static QList<RowWatch*>& watches() {
    static QList<RowWatch*> all;
    return all;
}

// One hook of the engine serves all watches of a connection. It stays when they have gone: the connection may
// be closed by then.
RowWatch::RowWatch(Connection& store, const QString& table, Listener listener)
    : handle_(isOnServer(store) ? nullptr : store.handle()),
      table_(table.toUtf8()),
      listener_(std::move(listener)) {
    if (!handle_) return;
    watches() += this;
    sqlite3_update_hook(handle_, &RowWatch::hear, handle_);
}

RowWatch::~RowWatch() { watches().removeOne(this); }

void RowWatch::hear(void* handle, int operation, const char* /*database*/, const char* table, long long row) {
    const Change change = operation == SQLITE_INSERT ? Added : operation == SQLITE_DELETE ? Deleted : Changed;
    for (const RowWatch* watch : watches())
        if (watch->handle_ == handle && qstricmp(watch->table_.constData(), table) == 0)
            watch->listener_(change, row);
}
