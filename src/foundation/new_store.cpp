#include "foundation/new_store.h"

#include "foundation/schema.h"
#include "foundation/store_place.h"
#include "platform/store/connection.h"
#include "platform/store/place.h"
#include "platform/store/schema_steps.h"
#include "platform/store/transaction.h"

#include <QFile>

namespace {
using Fill = std::function<void(Connection&)>;

void makeAt(const QString& place, const Fill& fill) {
    Connection store;
    store.create(place, passwordFor(place));
    Transaction unit(store);
    applySchemaSteps(store);
    fill(store);
    unit.commit();
}

[[noreturn]] void refuse(const QString& path, const char* reason) {
    throw StoreError(StoreError::general, QString("The store \"%1\" cannot be made: %2").arg(path, reason));
}

// Made under another name, so that the store is there whole or not at all.
void makeFile(const QString& path, const Fill& fill) {
    if (QFile::exists(path)) refuse(path, "the file already exists.");
    const QString draft = path + ".new";
    QFile::remove(draft);
    try {
        makeAt(draft, fill);
        QFile::remove(draft + "-journal");  // an empty one
        if (!QFile::rename(draft, path)) refuse(path, "the file cannot be given its name.");
    } catch (...) {
        QFile::remove(draft);
        throw;
    }
}
}  // namespace

void makeStore(const QString& place, const Fill& fill) {
    registerSchema();
    isServer(place) ? makeAt(place, fill) : makeFile(place, fill);
}

QList<TableFingerprint> copyStore(const QString& from, const QString& to) {
    registerSchema();
    Connection source;
    source.open(from, passwordFor(from));
    const Transaction unit(source);
    QList<TableFingerprint> copied;
    makeStore(to, [&](Connection& store) {
        copyRows(source, store);
        copied = fingerprintOf(store);
    });
    return copied;
}
