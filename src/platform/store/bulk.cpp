#include "platform/store/bulk.h"

#include "platform/store/connection_private.h"

#include <sqlite3.h>

namespace {
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
}  // namespace

BulkReader::BulkReader(Connection& store, const Sql& statement)
    : store_(store), text_(statement.text), statement_(store.d_->take(text_)) {
    try {
        bindAll(statement_, statement.values);
    } catch (...) {
        store_.d_->giveBack(text_, statement_);
        throw;
    }
}

BulkReader::~BulkReader() { store_.d_->giveBack(text_, statement_); }

bool BulkReader::next() { return stepped(statement_); }

qint64 BulkReader::integer(int column) const { return sqlite3_column_int64(statement_, column); }

bool BulkReader::isNull(int column) const { return sqlite3_column_type(statement_, column) == SQLITE_NULL; }

QByteArrayView BulkReader::bytes(int column) const {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement_, column));
    return {text, text ? sqlite3_column_bytes(statement_, column) : 0};
}

BulkWriter::BulkWriter(Connection& store, const QString& statement)
    : store_(store), text_(statement), statement_(store.d_->take(text_)) {}

BulkWriter::~BulkWriter() { store_.d_->giveBack(text_, statement_); }

void BulkWriter::bind(int position, qint64 value) { sqlite3_bind_int64(statement_, position, value); }

void BulkWriter::bind(int position, const QString& value) { bindText(statement_, position, value); }

void BulkWriter::step() {
    store_.requireUnit();
    tellStatement(text_);
    stepped(statement_);
    sqlite3_reset(statement_);
}
