// What of a connection speaks with the engine itself.
#include "platform/store/busy_wait.h"
#include "platform/store/connection_private.h"
#include "platform/store/dialect.h"

#include <QFileInfo>
#include <QSqlDriver>
#include <QSqlError>
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

sqlite3_stmt* engineStatementOf(const QSqlQuery& query) {
    const QVariant handle = query.result()->handle();
    return *static_cast<sqlite3_stmt* const*>(handle.constData());
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

bool BusyWait::again() {
    if (deadline_.hasExpired()) return false;
    if (idleHook()) idleHook()();
    QThread::msleep(20);
    return true;
}

StoreError engineError(sqlite3* engine) {
    const int number = numberOf(sqlite3_errcode(engine));
    return {number, number == StoreError::busy ? busyText : QString::fromUtf8(sqlite3_errmsg(engine))};
}

void waitOrThrow(sqlite3* engine, BusyWait& wait) {
    const StoreError error = engineError(engine);
    if (error.number() != StoreError::busy || !wait.again()) throw error;
}

std::shared_ptr<const QHash<QString, int>> columnPositions(const QStringList& names) {
    auto positions = std::make_shared<QHash<QString, int>>();
    for (int i = static_cast<int>(names.size()) - 1; i >= 0; --i) {
        positions->insert(names[i], i);
        positions->insert(names[i].toLower(), i);
    }
    return positions;
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
    positions.clear();
    database.close();
    database = QSqlDatabase();
    QSqlDatabase::removeDatabase(name);
    name.clear();
    path.clear();
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
    statement.columns = columnPositions(names);
    statement.columnCount = static_cast<int>(names.size());
    return true;
}

std::shared_ptr<PreparedStatement> Connection::Private::start(const Sql& sql) {
    BusyWait wait;
    for (bool told = false;;) {
        const auto statement = prepare(sql.text);
        if (statement && statement->valueCount != sql.values.size())
            throw StoreError(StoreError::general, "The statement has other values than it asks for.");
        if (statement && statement->writes && !std::exchange(told, true)) tellStatement(sql.text);
        if (statement && tryStart(*statement, sql)) return statement;
        waitOrThrow(engine(), wait);
        if (statement) statement->query.finish();
    }
}

void Connection::Private::fail(PreparedStatement& statement) const {
    const StoreError error = engineError(engine());
    statement.query.finish();
    throw error;
}

void Connection::Private::control(const QByteArray& statement) {
    BusyWait wait;
    while (sqlite3_exec(engine(), statement.constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        waitOrThrow(engine(), wait);
}
