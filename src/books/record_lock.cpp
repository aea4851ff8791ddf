#include "books/record_lock.h"

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

void setRecordLock(Connection& store, const LockableBook& book, const QString& key, bool locked) {
    store.run({update(book, locked ? "True" : "False", ""), {key}});
}
