#include "platform/store/store_file.h"

#include "platform/store/engine.h"
#include "platform/store/schema_steps.h"
#include "platform/store/server_engine.h"
#include "platform/store/transaction.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QPasswordDigestor>
#include <QRandomGenerator>

#include <sqlite3.h>

namespace {
constexpr qint64 applicationId = 0x5A767221;
constexpr int iterations = 20000;
constexpr int keyLength = 32;

[[noreturn]] void refuse(const QString& path, const char* reason) {
    throw StoreError(StoreError::general, QString("The store \"%1\" cannot be opened: %2").arg(path, reason));
}

constexpr const char* damaged = "the file is damaged or is not a store.";

// What every store of ours answers.
Recordset ownRow(Connection& store, const QString& query) {
    try {
        return store.execute(query);
    } catch (const StoreError& error) {
        if (error.number() == StoreError::busy) throw;
        if (sqlite3_extended_errcode(store.handle()) == SQLITE_READONLY_ROLLBACK)
            refuse(store.path(),
                   "its last save was broken off. Open it with the program, which undoes that.");
        refuse(store.path(), damaged);
    }
}

qint64 pragma(Connection& store, const char* name) {
    return ownRow(store, QString("SELECT * FROM pragma_%1").arg(name)).integer(name);
}

QByteArray verifier(const QString& password, const QByteArray& salt, int rounds) {
    return QPasswordDigestor::deriveKeyPbkdf2(QCryptographicHash::Sha256, password.toUtf8(), salt, rounds,
                                              keyLength);
}

QByteArray randomSalt() {
    QByteArray salt(16, Qt::Uninitialized);
    for (char& byte : salt) byte = static_cast<char>(QRandomGenerator::system()->generate());
    return salt;
}
}  // namespace

void requireFile(const QString& path) {
    const QFileInfo file(path);
    if (!file.exists()) refuse(path, "the file is not there.");
    if (!file.isFile()) refuse(path, "it is not a file.");
    if (file.size() == 0) refuse(path, "the file is empty.");
}

void requireWritableFile(const QString& path) {
    requireFile(path);
    const QFileInfo file(path);
    if (!file.isWritable()) refuse(path, "the file is read-only.");
    if (!QFileInfo(file.absolutePath()).isWritable()) refuse(path, "its folder is read-only.");
}

static void requireOwnFile(Connection& store) {
    if (pragma(store, "application_id") != applicationId)
        refuse(store.path(), "the file is not a store of this program.");
    const qint64 version = pragma(store, "user_version");
    if (version < 0) refuse(store.path(), damaged);
    if (version > schemaVersion()) refuse(store.path(), "it was written by a newer version of this program.");
}

void requireOwnStore(Connection& store) {
    if (!isOnServer(store)) return requireOwnFile(store);
    requireOwnDatabase(engineOf(store), store.path());
}

void requireWritable(Connection& store) {
    if (sqlite3_db_readonly(store.handle(), "main") != 0) refuse(store.path(), "the file is read-only.");
}

void requirePassword(Connection& store, const QString& password) {
    const Recordset row = ownRow(store, "SELECT Salt, Rounds, Verifier FROM StorePassword");
    if (row.eof()) refuse(store.path(), damaged);
    const QByteArray given =
        verifier(password, row.value("Salt").toByteArray(), static_cast<int>(row.integer("Rounds")));
    if (given != row.value("Verifier").toByteArray()) refuse(store.path(), "not a valid password.");
}

void markOwnStore(Connection& store, const QString& password) {
    const QByteArray salt = randomSalt();
    Transaction unit(store);
    store.run(QString("PRAGMA application_id = %1").arg(applicationId));
    store.run(
        "CREATE TABLE StorePassword (Salt BLOB NOT NULL, Rounds INTEGER NOT NULL, Verifier BLOB NOT NULL)");
    store.run({"INSERT INTO StorePassword VALUES (?, ?, ?)",
               {salt, iterations, verifier(password, salt, iterations)}});
    unit.commit();
}

void setWorkingMode(Connection& store) {
    // Deleting the journal would end a unit, too, but the deletion itself can be lost with the power. As safe
    // is a deletion that is flushed (synchronous EXTRA); emptying the journal takes a sixth less time.
    store.execute("PRAGMA journal_mode = TRUNCATE");
    store.run("PRAGMA synchronous = FULL");
    store.run("PRAGMA temp_store = MEMORY");
    // Pages in memory, as far as they are read: a third of the books of 200,000 documents. A twelfth of the
    // books costs the end of day a fifth more of the processor and a tenth more of the disk.
    store.run("PRAGMA cache_size = -128000");
}
