#include "platform/store/file_engine.h"

#include "platform/store/dialect.h"
#include "platform/store/like.h"
#include "platform/store/row_watch.h"

#include <QFileInfo>
#include <QSqlDriver>
#include <QSqlError>
#include <QSqlRecord>
#include <QSqlResult>
#include <QUrl>

#include <sqlite3.h>
#include <atomic>
#include <optional>

namespace {
int numberOf(int engineCode) {
    switch (engineCode & 0xFF) {
        case SQLITE_CONSTRAINT:
            return StoreError::refused;
        case SQLITE_MISMATCH:
            return StoreError::typeMismatch;
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            return StoreError::busy;
        default:
            return StoreError::general;
    }
}

QStringList columnNames(const QSqlRecord& record) {
    QStringList names;
    for (int i = 0; i < record.count(); ++i) names += record.fieldName(i);
    return names;
}

QList<ColumnKind> columnKinds(sqlite3_stmt* handle, const QStringList& names, const QString& statement) {
    QList<ColumnKind> kinds;
    for (int i = 0; i < names.size(); ++i) {
        const ColumnKind declared = declaredKind(QString::fromUtf8(sqlite3_column_decltype(handle, i)));
        kinds += declared == ColumnKind::Unknown ? computedKind(names[i], statement) : declared;
    }
    return kinds;
}

sqlite3_stmt* engineStatementOf(const QSqlQuery& query) {
    const QVariant handle = query.result()->handle();
    return *static_cast<sqlite3_stmt* const*>(handle.constData());
}

QVariant textOf(sqlite3_stmt* statement, int column) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
    return QString::fromUtf8(text, sqlite3_column_bytes(statement, column));
}

QVariant bytesOf(sqlite3_stmt* statement, int column) {
    const auto* bytes = static_cast<const char*>(sqlite3_column_blob(statement, column));
    return QByteArray(bytes, sqlite3_column_bytes(statement, column));
}

QVariant valueOf(sqlite3_stmt* statement, int column) {
    switch (sqlite3_column_type(statement, column)) {
        case SQLITE_INTEGER:
            return qlonglong{sqlite3_column_int64(statement, column)};
        case SQLITE_FLOAT:
            return sqlite3_column_double(statement, column);
        case SQLITE_NULL:
            return QVariant(QMetaType::fromType<QString>());
        case SQLITE_BLOB:
            return bytesOf(statement, column);
        default:
            return textOf(statement, column);
    }
}

QVariantList rowOf(sqlite3_stmt* statement, int columnCount) {
    QVariantList row;
    row.reserve(columnCount);
    for (int column = 0; column < columnCount; ++column) row.emplaceBack(valueOf(statement, column));
    return row;
}

QString uri(const QString& file, const char* mode) {
    QUrl url = QUrl::fromLocalFile(QFileInfo(file).absoluteFilePath());
    url.setQuery(QString("mode=") + mode);
    return url.toString(QUrl::FullyEncoded);
}

QString nextName() {
    static std::atomic<int> count = 0;
    return QString("store-%1").arg(++count);
}

bool executed(PreparedStatement& statement, const QVariantList& values) {
    for (int i = 0; i < statement.valueCount; ++i) statement.query.bindValue(i, storedValue(values[i]));
    return statement.query.exec();
}

// What a person can do about a failure of the file or its disk; null: the engine's own text serves better.
const char* adviceOn(int engineCode) {
    if (engineCode == SQLITE_READONLY_DBMOVED)
        return "The store has been moved or renamed while the program had it open. Please bring it back and "
               "start the program again.";
    switch (engineCode & 0xFF) {
        case SQLITE_FULL:
            return "The disk of the store is full. Please make room on it and try again.";
        case SQLITE_READONLY:
            return "The store is read-only. Please allow this user to write to it and to its folder.";
        case SQLITE_CANTOPEN:
            return "The folder of the store has gone, or is read-only.";
        case SQLITE_IOERR:
            return "The disk of the store fails. Please try again, and have the disk looked at.";
        case SQLITE_CORRUPT:
        case SQLITE_NOTADB:
            return "The store is damaged. Please go back to the newest copy in the folder \"Backup\".";
        default:
            return nullptr;
    }
}

StoreError engineError(sqlite3* engine) {
    const int number = numberOf(sqlite3_errcode(engine));
    if (number == StoreError::busy) return {number, busyText};
    const QString reason = QString::fromUtf8(sqlite3_errmsg(engine));
    const char* advice = adviceOn(sqlite3_extended_errcode(engine));
    return {number, advice ? QString("%1 (%2)").arg(advice, reason) : reason};
}

void waitOrThrow(sqlite3* engine, BusyWait& wait) {
    const StoreError error = engineError(engine);
    if (error.number() != StoreError::busy || !wait.again()) throw error;
}

// The engine's own hook, which it calls for each row.
void tellRow(void* engine, int operation, const char* /*database*/, const char* table, sqlite3_int64 row) {
    const RowWatch::Change change = operation == SQLITE_INSERT   ? RowWatch::Added
                                    : operation == SQLITE_DELETE ? RowWatch::Deleted
                                                                 : RowWatch::Changed;
    RowWatch::tell(static_cast<const FileEngine*>(engine), QString::fromUtf8(table), change, row);
}

QString savepoint(int level) { return QString("unit%1").arg(level); }
}  // namespace

FileEngine::FileEngine(const QString& file, const char* mode)
    : name_(nextName()), database_(QSqlDatabase::addDatabase("QSQLITE", name_)) {
    database_.setDatabaseName(uri(file, mode));
    database_.setConnectOptions("QSQLITE_OPEN_URI;QSQLITE_BUSY_TIMEOUT=0");
    if (database_.open()) {
        overrideLike(handle());
        return;
    }
    const QString reason = database_.lastError().databaseText();
    database_ = QSqlDatabase();
    QSqlDatabase::removeDatabase(name_);
    throw StoreError(StoreError::general, QString("The store \"%1\" cannot be opened: %2").arg(file, reason));
}

FileEngine::~FileEngine() {
    prepared_.clear();
    for (sqlite3_stmt* statement : std::exchange(idle_, {})) sqlite3_finalize(statement);
    database_.close();
    database_ = QSqlDatabase();
    QSqlDatabase::removeDatabase(name_);
}

sqlite3* FileEngine::handle() const {
    const QVariant handle = database_.driver()->handle();
    return *static_cast<sqlite3* const*>(handle.constData());
}

std::shared_ptr<PreparedStatement> FileEngine::prepared(const QString& text) {
    if (auto known = prepared_.value(text)) return known;
    auto statement =
        std::make_shared<PreparedStatement>(PreparedStatement{.query = QSqlQuery(database_), .columns = {}});
    statement->query.setForwardOnly(true);
    if (!statement->query.prepare(engineStatement(text))) return nullptr;
    sqlite3_stmt* const handle = engineStatementOf(statement->query);
    statement->valueCount = sqlite3_bind_parameter_count(handle);
    statement->writes = sqlite3_stmt_readonly(handle) == 0;
    if (prepared_.size() >= keptStatements) prepared_.clear();
    prepared_.insert(text, statement);
    return statement;
}

bool FileEngine::tryStart(PreparedStatement& statement, const Sql& sql) {
    if (!executed(statement, sql.values)) return false;
    if (statement.columns) return true;
    const QStringList names = columnNames(statement.query.record());
    statement.columns = columnsOf(names, columnKinds(engineStatementOf(statement.query), names, sql.text));
    statement.columnCount = static_cast<int>(names.size());
    return true;
}

std::shared_ptr<PreparedStatement> FileEngine::start(const Sql& sql) {
    BusyWait wait;
    for (bool told = false;;) {
        const auto statement = prepared(sql.text);
        if (statement) requireValues(statement->valueCount, sql.values);
        if (statement && statement->writes && !std::exchange(told, true)) tellStatement(sql.text);
        if (statement && tryStart(*statement, sql)) return statement;
        waitOrThrow(handle(), wait);
        if (statement) statement->query.finish();
    }
}

// Straight from the engine, where the driver has stopped at the first row: through the driver every value
// costs several times as much.
std::vector<QVariantList> FileEngine::readRows(PreparedStatement& statement) const {
    sqlite3_stmt* const handle = engineStatementOf(statement.query);
    std::vector<QVariantList> rows;
    int code = sqlite3_data_count(handle) > 0 ? SQLITE_ROW : SQLITE_DONE;
    for (; code == SQLITE_ROW; code = sqlite3_step(handle))
        rows.push_back(rowOf(handle, statement.columnCount));
    if (code != SQLITE_DONE) fail(statement);
    statement.query.finish();
    return rows;
}

void FileEngine::fail(PreparedStatement& statement) const {
    const StoreError error = engineError(handle());
    statement.query.finish();
    throw error;
}

bool stepped(sqlite3_stmt* statement, Turn turn) {
    const bool underWay = sqlite3_stmt_busy(statement) != 0;
    // Made when it is needed: it reads the clock, and a pass takes a step for every row.
    std::optional<BusyWait> wait;
    for (;;) {
        const int code = sqlite3_step(statement);
        if (code == SQLITE_ROW || code == SQLITE_DONE) return code == SQLITE_ROW;
        sqlite3* const engine = sqlite3_db_handle(statement);
        if (underWay) throw engineError(engine);
        sqlite3_reset(statement);
        if (!wait) wait.emplace(turn);
        waitOrThrow(engine, *wait);
    }
}

sqlite3_stmt* FileEngine::take(const QString& text) {
    if (sqlite3_stmt* known = idle_.take(text)) return known;
    const QByteArray utf8 = engineStatement(text).toUtf8();
    sqlite3_stmt* statement = nullptr;
    BusyWait wait;
    while (sqlite3_prepare_v3(handle(), utf8.constData(), static_cast<int>(utf8.size()),
                              SQLITE_PREPARE_PERSISTENT, &statement, nullptr) != SQLITE_OK)
        waitOrThrow(handle(), wait);
    return statement;
}

void FileEngine::giveBack(const QString& text, sqlite3_stmt* statement) {
    sqlite3_reset(statement);
    sqlite3_clear_bindings(statement);
    if (idle_.contains(text) || idle_.size() >= keptStatements)
        sqlite3_finalize(statement);
    else
        idle_.insert(text, statement);
}

void FileEngine::control(const QString& statement, Turn turn) {
    sqlite3_stmt* const taken = take(statement);
    try {
        stepped(taken, turn);
    } catch (...) {
        giveBack(statement, taken);
        throw;
    }
    giveBack(statement, taken);
}

ReadRows FileEngine::execute(const Sql& statement) {
    const auto started = start(statement);
    return {started->columns, started->columnCount, readRows(*started)};
}

qint64 FileEngine::run(const Sql& statement) {
    const auto started = start(statement);
    const qint64 changed = started->query.numRowsAffected();
    started->query.finish();
    return changed;
}

qint64 FileEngine::insert(const Sql& statement, const QString&) {
    run(statement);
    return sqlite3_last_insert_rowid(handle());
}

// The bulk reader steps the engine's statements itself.
std::unique_ptr<BulkRows> FileEngine::read(const Sql&) { return nullptr; }

QStringList FileEngine::tables() {
    QStringList names;
    const ReadRows found = execute(
        "SELECT name FROM sqlite_master WHERE type = 'table' AND name <> 'StorePassword'"
        " AND name NOT GLOB 'sqlite_*' ORDER BY name");
    for (const QVariantList& row : found.rows) names += row[0].toString();
    return names;
}

QStringList FileEngine::definitions() {
    QStringList found;
    const ReadRows rows =
        execute("SELECT type || ' ' || name || ': ' || sql FROM sqlite_master WHERE sql IS NOT NULL");
    for (const QVariantList& row : rows.rows) found += row[0].toString();
    return found;
}

QList<TableColumn> FileEngine::readColumns(const QString& table) {
    QList<TableColumn> columns;
    const ReadRows found = execute({"SELECT name, type, pk FROM pragma_table_info(?) ORDER BY cid", {table}});
    for (const QVariantList& row : found.rows) {
        const QString type = row[1].toString().toUpper();
        columns += {row[0].toString(), type, type == "INTEGER" && row[2].toInt() == 1};
    }
    return columns;
}

void FileEngine::begin(Turn turn) { control("BEGIN IMMEDIATE", turn); }

void FileEngine::commit() { control("COMMIT"); }

void FileEngine::setPoint(int level) { control("SAVEPOINT " + savepoint(level)); }

void FileEngine::keepPoint(int level) { control("RELEASE " + savepoint(level)); }

void FileEngine::undoBy(const QString& statements) const {
    if (!hasUndoneUnit()) sqlite3_exec(handle(), statements.toUtf8().constData(), nullptr, nullptr, nullptr);
}

void FileEngine::undo() { undoBy("ROLLBACK"); }

void FileEngine::undoToPoint(int level) {
    undoBy("ROLLBACK TO " + savepoint(level) + "; RELEASE " + savepoint(level));
}

bool FileEngine::hasUndoneUnit() const { return sqlite3_get_autocommit(handle()) != 0; }

qint64 FileEngine::version() {
    return execute("SELECT user_version FROM pragma_user_version").rows.at(0).at(0).toLongLong();
}

void FileEngine::setVersion(qint64 version) { run(QString("PRAGMA user_version = %1").arg(version)); }

void FileEngine::tellRows() { sqlite3_update_hook(handle(), &tellRow, this); }
