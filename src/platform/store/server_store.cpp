// What makes a database of a server a store of this program.
#include "platform/store/schema_steps.h"
#include "platform/store/server_dialect.h"
#include "platform/store/server_engine.h"

namespace {
constexpr qint64 applicationId = 0x5A767221;

[[noreturn]] void refuse(const QString& place, const char* reason) {
    throw StoreError(StoreError::general,
                     QString("The store on the server \"%1\" cannot be opened: %2").arg(place, reason));
}

[[noreturn]] void refuseToMake(const QString& place, const char* reason) {
    throw StoreError(StoreError::general,
                     QString("The store on the server \"%1\" cannot be made: %2").arg(place, reason));
}
}  // namespace

void requireOwnDatabase(Engine& engine, const QString& place) {
    auto& server = static_cast<ServerEngine&>(engine);
    if (server.version() == 0 ||
        server.valueOf("SELECT Application FROM StoreVersion").toLongLong() != applicationId)
        refuse(place, "the database holds no books of this program.");
    if (server.version() > schemaVersion())
        refuse(place, "it was written by a newer version of this program.");
}

void requireEmptyDatabase(Engine& engine, const QString& place) {
    auto& server = static_cast<ServerEngine&>(engine);
    if (server.valueOf("SELECT count(*) FROM pg_class WHERE relnamespace NOT IN (SELECT oid FROM "
                       "pg_namespace WHERE nspname IN ('pg_catalog', 'information_schema', 'pg_toast'))") !=
        "0")
        refuseToMake(place, "the database is not empty.");
    if (server.valueOf("SELECT getdatabaseencoding() || datcollate || datctype FROM pg_database WHERE "
                       "datname = current_database()") != "UTF8CC")
        refuseToMake(place,
                     "its texts would not sort as they have to. Please make the database with \"createdb "
                     "--template=template0 --encoding=UTF8 --locale=C NAME\".");
}

void ServerEngine::prepare() {
    sendLater();
    for (const QString& statement : serverGround()) link_.simple(statement.toUtf8());
    link_.simple("INSERT INTO StoreVersion VALUES (" + QByteArray::number(applicationId) + ", 0)");
    catalogue_.clear();
    forgetTables();
}

void ServerEngine::refuseWrites() { link_.simple("SET default_transaction_read_only = on"); }

void ServerEngine::rowsAreCopied() {
    sendLater();
    for (const Table& table : catalogue())
        for (const TableColumn& column : table.columns)
            if (column.isKey)
                link_.simple(QString("SELECT setval(pg_get_serial_sequence('%1', '%2'), "
                                     "GREATEST(1, (SELECT MAX(%2) FROM %1)))")
                                 .arg(table.name, column.name)
                                 .toUtf8());
    link_.simple("ANALYZE");
}
