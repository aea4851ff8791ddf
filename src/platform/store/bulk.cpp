#include "platform/store/bulk.h"

#include "platform/store/connection_private.h"
#include "platform/store/file_engine.h"

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
// The connection may have been closed meanwhile.
void giveBack(FileEngine* engine, const QString& text, sqlite3_stmt* statement) {
    if (engine)
        engine->giveBack(text, statement);
    else
        sqlite3_finalize(statement);
}
}  // namespace

Engine& BulkReader::engineOf(const Connection& store) { return store.d_->opened(); }

BulkReader::BulkReader(Connection& store, const Sql& statement) : store_(store), text_(statement.text) {
    rows_ = store_.d_->opened().read(statement);
    if (rows_) return;
    statement_ = store_.d_->openedFile().take(text_);
    try {
        bindAll(statement_, statement.values);
    } catch (...) {
        giveBack(store_.d_->file, text_, statement_);
        throw;
    }
}

BulkReader::~BulkReader() {
    if (statement_) giveBack(store_.d_->file, text_, statement_);
}

bool BulkReader::next() { return statement_ ? stepped(statement_) : rows_->next(); }

qint64 BulkReader::integer(int column) const {
    return statement_ ? sqlite3_column_int64(statement_, column) : rows_->integer(column);
}

bool BulkReader::isNull(int column) const {
    return statement_ ? sqlite3_column_type(statement_, column) == SQLITE_NULL : rows_->isNull(column);
}

QByteArrayView BulkReader::bytes(int column) const {
    if (!statement_) return rows_->bytes(column);
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement_, column));
    return {text, text ? sqlite3_column_bytes(statement_, column) : 0};
}

BulkWriter::BulkWriter(Connection& store, const QString& statement, Refused refused)
    : store_(store), text_(statement), refused_(refused) {
    if (!isOnServer(store_)) statement_ = store_.d_->openedFile().take(text_);
}

BulkWriter::~BulkWriter() {
    if (statement_) giveBack(store_.d_->file, text_, statement_);
}

void BulkWriter::keep(int position, const QVariant& value) {
    if (values_.size() < position) values_.resize(position);
    values_[position - 1] = value;
}

void BulkWriter::bind(int position, qint64 value) {
    statement_ ? void(sqlite3_bind_int64(statement_, position, value)) : keep(position, value);
}

void BulkWriter::bind(int position, const QString& value) {
    statement_ ? bindText(statement_, position, value) : keep(position, value);
}

void BulkWriter::passOver(const std::function<void()>& write) {
    try {
        write();
    } catch (const StoreError& error) {
        if (error.number() == StoreError::busy) throw;
        store_.requireUnit();
    }
}

void BulkWriter::step() {
    constexpr size_t rowsAtOnce = 64;
    store_.requireUnit();
    if (statement_) {
        tellStatement(text_);
        const auto write = [this] {
            stepped(statement_);
            sqlite3_reset(statement_);
        };
        refused_ == PassedOver ? passOver(write) : write();
    } else if (refused_ == Thrown) {
        store_.d_->opened().runLater({text_, values_});
    } else {
        rows_.push_back(values_);
        if (rows_.size() == rowsAtOnce) flush();
    }
}

// Where one of many is refused, each is tried by itself.
void BulkWriter::flush() {
    const std::vector<QVariantList> rows = std::exchange(rows_, {});
    if (rows.empty()) return;
    Engine& engine = store_.d_->opened();
    try {
        engine.runMany(text_, rows);
    } catch (const StoreError& error) {
        if (error.number() == StoreError::busy) throw;
        store_.requireUnit();
        for (const QVariantList& row : rows) passOver([&] { engine.run({text_, row}); });
    }
}
