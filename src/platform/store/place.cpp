#include "platform/store/place.h"

#include "platform/store/bulk.h"
#include "platform/store/engine.h"

bool isServer(const QString& place) {
    return place.startsWith("postgresql://") || place.startsWith("postgres://");
}

Engine& engineOf(const Connection& store) { return BulkReader::engineOf(store); }

bool isOnServer(const Connection& store) { return isServer(store.path()); }

QString keyOf(Connection& store, const QString& table) { return engineOf(store).keyOf(table); }

QStringList tablesOf(Connection& store) { return engineOf(store).tables(); }
