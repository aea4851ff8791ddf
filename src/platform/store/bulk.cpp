#include "platform/store/bulk.h"

#include "platform/store/connection_private.h"
#include "platform/store/dialect.h"

#include <sqlite3.h>

namespace {
sqlite3_stmt* prepareBulk(Connection& store, const QString& text) {
    const QByteArray utf8 = engineStatement(text).toUtf8();
    sqlite3_stmt* statement = nullptr;
    BusyWait wait;
    while (sqlite3_prepare_v2(store.handle(), utf8.constData(), static_cast<int>(utf8.size()), &statement,
                              nullptr) != SQLITE_OK)
        waitOrThrow(store.handle(), wait);
    return statement;
}

void bindText(sqlite3_stmt* statement, int position, const QString& text) {
    const QByteArray utf8 = text.toUtf8();
    sqlite3_bind_text(statement, position, utf8.constData(), static_cast<int>(utf8.size()), SQLITE_TRANSIENT);
}

void bindValue(sqlite3_stmt* statement, int position, const QVariant& value) {
    if (value.isNull())
        sqlite3_bind_null(statement, position);
    else if (value.metaType() == QMetaType::fromType<QString>())
        bindText(statement, position, value.toString());
    else if (value.metaType() == QMetaType::fromType<double>())
        sqlite3_bind_double(statement, position, value.toDouble());
    else
        sqlite3_bind_int64(statement, position, value.toLongLong());
}

void bindAll(sqlite3_stmt* statement, const QVariantList& values) {
    requireValues(sqlite3_bind_parameter_count(statement), values);
    for (int i = 0; i < values.size(); ++i) bindValue(statement, i + 1, storedValue(values[i]));
}

// One step; true when it gave a row. A first step that met another workstation's lock is tried again; later
// ones hold a lock of their own.
bool stepped(sqlite3_stmt* statement) {
    sqlite3* const engine = sqlite3_db_handle(statement);
    const bool underWay = sqlite3_stmt_busy(statement) != 0;
    BusyWait wait;
    for (;;) {
        const int code = sqlite3_step(statement);
        if (code == SQLITE_ROW || code == SQLITE_DONE) return code == SQLITE_ROW;
        if (underWay) throw engineError(engine);
        sqlite3_reset(statement);
        waitOrThrow(engine, wait);
    }
}
}  // namespace

BulkReader::BulkReader(Connection& store, const Sql& statement)
    : statement_(prepareBulk(store, statement.text)) {
    try {
        bindAll(statement_, statement.values);
    } catch (...) {
        sqlite3_finalize(statement_);
        throw;
    }
}

BulkReader::~BulkReader() { sqlite3_finalize(statement_); }

bool BulkReader::next() { return stepped(statement_); }

qint64 BulkReader::integer(int column) const { return sqlite3_column_int64(statement_, column); }

bool BulkReader::isNull(int column) const { return sqlite3_column_type(statement_, column) == SQLITE_NULL; }

QByteArrayView BulkReader::bytes(int column) const {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement_, column));
    return {text, text ? sqlite3_column_bytes(statement_, column) : 0};
}

BulkWriter::BulkWriter(Connection& store, const QString& statement)
    : store_(store), text_(statement), statement_(prepareBulk(store, statement)) {}

BulkWriter::~BulkWriter() { sqlite3_finalize(statement_); }

void BulkWriter::bind(int position, qint64 value) { sqlite3_bind_int64(statement_, position, value); }

void BulkWriter::bind(int position, const QString& value) { bindText(statement_, position, value); }

void BulkWriter::step() {
    store_.requireUnit();
    tellStatement(text_);
    stepped(statement_);
    sqlite3_reset(statement_);
}
