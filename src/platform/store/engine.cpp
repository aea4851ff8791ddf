// What of a connection speaks with the engine itself.
#include "platform/store/busy_wait.h"
#include "platform/store/connection_private.h"
#include "platform/store/dialect.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSqlDatabase>
#include <QSqlDriver>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QSqlResult>
#include <QThread>
#include <QUrl>

#include <sqlite3.h>

namespace {
constexpr qsizetype keptStatements = 400;
constexpr const char* busyText = "Another workstation is using the store. Please try again.";

std::function<void()>& idleHook() {
    static std::function<void()> hook;
    return hook;
}

std::function<void(const QString&)>& statementHook() {
    static std::function<void(const QString&)> hook;
    return hook;
}

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

// The statement computes the column of this name with this function: "COUNT(*) AS Lines", or "COUNT(*)"
// itself.
bool computes(const QString& function, const QString& name, const QString& statement) {
    static const QString named = "\\b%1 *\\([^()]*\\) +AS +\"?%2\\b";
    return name.startsWith(function + u'(', Qt::CaseInsensitive) ||
           statement.contains(QRegularExpression(named.arg(function, QRegularExpression::escape(name)),
                                                 QRegularExpression::CaseInsensitiveOption));
}

// What is summed up are amounts.
ColumnKind computedKind(const QString& name, const QString& statement) {
    if (computes("COUNT", name, statement)) return ColumnKind::Integer;
    return computes("SUM", name, statement) ? ColumnKind::Currency : ColumnKind::Unknown;
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
    static int count = 0;
    return QString("store-%1").arg(++count);
}

bool executed(PreparedStatement& statement, const QVariantList& values) {
    for (int i = 0; i < statement.valueCount; ++i) statement.query.bindValue(i, storedValue(values[i]));
    return statement.query.exec();
}
}  // namespace

void Connection::setIdleHook(std::function<void()> hook) { idleHook() = std::move(hook); }

void Connection::setStatementHook(std::function<void(const QString&)> hook) {
    statementHook() = std::move(hook);
}

void tellStatement(const QString& text) {
    if (statementHook()) statementHook()(text);
}

// The hook is the window's: work beside it waits without.
static bool hasIdleHook() { return idleHook() && (!qApp || QThread::currentThread() == qApp->thread()); }

bool BusyWait::again() {
    if (deadline_.hasExpired()) return false;
    if (nextIdle_.hasExpired()) {
        if (hasIdleHook()) idleHook()();
        nextIdle_.setRemainingTime(20);
    }
    QThread::msleep(lookEveryMs_);
    return true;
}

// What a person can do about a failure of the file or its disk; null: the engine's own text serves better.
static const char* adviceOn(int engineCode) {
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

void requireValues(int asked, const QVariantList& given) {
    if (given.size() != asked)
        throw StoreError(StoreError::general, "The statement has other values than it asks for.");
}

std::shared_ptr<const RecordsetColumns> columnsOf(const QStringList& names, const QList<ColumnKind>& kinds) {
    auto columns = std::make_shared<RecordsetColumns>();
    columns->kinds = kinds;
    for (int i = static_cast<int>(names.size()) - 1; i >= 0; --i) {
        columns->positions.insert(names[i], i);
        columns->positions.insert(names[i].toLower(), i);
    }
    return columns;
}

ColumnKind declaredKind(const QString& type) {
    static const std::pair<QString, ColumnKind> kinds[] = {{"CURRENCY", ColumnKind::Currency},
                                                           {"BOOL", ColumnKind::Flag},
                                                           {"DATE", ColumnKind::Date},
                                                           {"INT", ColumnKind::Integer}};
    for (const auto& [word, kind] : kinds)
        if (type.contains(word, Qt::CaseInsensitive)) return kind;
    return type.isEmpty() ? ColumnKind::Unknown : ColumnKind::Text;
}

void Connection::Private::openFile(const QString& file, const char* mode) {
    name = nextName();
    path = file;
    database = QSqlDatabase::addDatabase("QSQLITE", name);
    database.setDatabaseName(uri(file, mode));
    database.setConnectOptions("QSQLITE_OPEN_URI;QSQLITE_BUSY_TIMEOUT=0");
    if (database.open()) return;
    const QString reason = database.lastError().databaseText();
    shut();
    throw StoreError(StoreError::general, QString("The store \"%1\" cannot be opened: %2").arg(file, reason));
}

void Connection::Private::shut() {
    if (name.isEmpty()) return;
    prepared.clear();
    types.clear();
    columns.clear();
    for (sqlite3_stmt* statement : std::exchange(idle, {})) sqlite3_finalize(statement);
    database.close();
    database = QSqlDatabase();
    QSqlDatabase::removeDatabase(name);
    name.clear();
    path.clear();
    leftMarks.clear();
    mark.reset();
}

sqlite3* Connection::Private::engine() const {
    if (name.isEmpty()) throw StoreError(StoreError::general, "The store is not open.");
    const QVariant handle = database.driver()->handle();
    return *static_cast<sqlite3* const*>(handle.constData());
}

std::shared_ptr<PreparedStatement> Connection::Private::prepare(const QString& text) {
    if (auto known = prepared.value(text)) return known;
    auto statement =
        std::make_shared<PreparedStatement>(PreparedStatement{.query = QSqlQuery(database), .columns = {}});
    statement->query.setForwardOnly(true);
    if (!statement->query.prepare(engineStatement(text))) return nullptr;
    sqlite3_stmt* const handle = engineStatementOf(statement->query);
    statement->valueCount = sqlite3_bind_parameter_count(handle);
    statement->writes = sqlite3_stmt_readonly(handle) == 0;
    if (prepared.size() >= keptStatements) prepared.clear();
    prepared.insert(text, statement);
    return statement;
}

bool Connection::Private::tryStart(PreparedStatement& statement, const Sql& sql) {
    if (!executed(statement, sql.values)) return false;
    if (statement.columns) return true;
    const QStringList names = columnNames(statement.query.record());
    statement.columns = columnsOf(names, columnKinds(engineStatementOf(statement.query), names, sql.text));
    statement.columnCount = static_cast<int>(names.size());
    return true;
}

std::shared_ptr<PreparedStatement> Connection::Private::start(const Sql& sql) {
    BusyWait wait;
    for (bool told = false;;) {
        const auto statement = prepare(sql.text);
        if (statement) requireValues(statement->valueCount, sql.values);
        if (statement && statement->writes && !std::exchange(told, true)) tellStatement(sql.text);
        if (statement && tryStart(*statement, sql)) return statement;
        waitOrThrow(engine(), wait);
        if (statement) statement->query.finish();
    }
}

// Straight from the engine, where the driver has stopped at the first row: through the driver every value
// costs several times as much.
std::vector<QVariantList> Connection::Private::readRows(PreparedStatement& statement) const {
    sqlite3_stmt* const handle = engineStatementOf(statement.query);
    std::vector<QVariantList> rows;
    int code = sqlite3_data_count(handle) > 0 ? SQLITE_ROW : SQLITE_DONE;
    for (; code == SQLITE_ROW; code = sqlite3_step(handle))
        rows.push_back(rowOf(handle, statement.columnCount));
    if (code != SQLITE_DONE) fail(statement);
    statement.query.finish();
    return rows;
}

void Connection::Private::fail(PreparedStatement& statement) const {
    const StoreError error = engineError(engine());
    statement.query.finish();
    throw error;
}

bool stepped(sqlite3_stmt* statement, BusyWait wait) {
    sqlite3* const engine = sqlite3_db_handle(statement);
    const bool underWay = sqlite3_stmt_busy(statement) != 0;
    for (;;) {
        const int code = sqlite3_step(statement);
        if (code == SQLITE_ROW || code == SQLITE_DONE) return code == SQLITE_ROW;
        if (underWay) throw engineError(engine);
        sqlite3_reset(statement);
        waitOrThrow(engine, wait);
    }
}

sqlite3_stmt* Connection::Private::take(const QString& text) {
    if (sqlite3_stmt* known = idle.take(text)) return known;
    const QByteArray utf8 = engineStatement(text).toUtf8();
    sqlite3_stmt* statement = nullptr;
    BusyWait wait;
    while (sqlite3_prepare_v3(engine(), utf8.constData(), static_cast<int>(utf8.size()),
                              SQLITE_PREPARE_PERSISTENT, &statement, nullptr) != SQLITE_OK)
        waitOrThrow(engine(), wait);
    return statement;
}

void Connection::Private::giveBack(const QString& text, sqlite3_stmt* statement) {
    sqlite3_reset(statement);
    sqlite3_clear_bindings(statement);
    if (name.isEmpty() || idle.contains(text) || idle.size() >= keptStatements)
        sqlite3_finalize(statement);
    else
        idle.insert(text, statement);
}

void Connection::Private::control(const QString& statement, BusyWait wait) {
    sqlite3_stmt* const taken = take(statement);
    try {
        stepped(taken, wait);
    } catch (...) {
        giveBack(statement, taken);
        throw;
    }
    giveBack(statement, taken);
}
