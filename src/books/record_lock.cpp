#include "books/record_lock.h"

#include "foundation/shared_routines.h"

namespace {
QString update(const LockableBook& book, const char* value, const char* condition) {
    return QString("UPDATE %1 SET RecordLock = %2 WHERE %3 = ?%4")
        .arg(book.table, value, book.key, condition);
}
}  // namespace

LockResult takeRecordLock(Connection& store, const LockableBook& book, const QString& key) {
    if (store.run({update(book, "True", " AND RecordLock = False"), {key}}) > 0) return LockResult::Taken;
    const Recordset row =
        store.execute({QString("SELECT 1 FROM %1 WHERE %2 = ?").arg(book.table, book.key), {key}});
    return row.eof() ? LockResult::Gone : LockResult::Locked;
}

HeldLock heldLock(Connection& store, const LockableBook& book, const QString& key) {
    return {key, FlagFieldSet(store, book.table, book.key, key, "Printed")};
}

void releaseRecordLock(Connection& store, const LockableBook& book, const HeldLock& lock) {
    store.run({update(book, "False", lock.wasPrinted ? "" : " AND Printed = False"), {lock.key}});
}

void setRecordLock(Connection& store, const LockableBook& book, const QString& key, bool locked) {
    store.run({update(book, locked ? "True" : "False", ""), {key}});
}
