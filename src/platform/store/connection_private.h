#pragma once
#include "platform/store/busy_wait.h"
#include "platform/store/connection.h"
#include "platform/store/open_mark.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <optional>

// A statement that the engine has read once, and the columns it gives.
struct PreparedStatement {
    QSqlQuery query;
    std::shared_ptr<const RecordsetColumns> columns;
    int columnCount = 0;
    int valueCount = 0;
    bool writes = false;
};

struct sqlite3_stmt;

struct Connection::Private {
    QString name;
    QString path;
    QSqlDatabase database;
    QStringList leftMarks;
    std::optional<OpenMark> mark;
    QHash<QString, std::shared_ptr<PreparedStatement>> prepared;
    QHash<QString, QHash<QString, QString>> types;                    // of columns, by table
    QHash<QString, std::shared_ptr<const RecordsetColumns>> columns;  // by table

    // Statements of the bulk reader and writer, and BEGIN and its kin, that nobody uses at the moment.
    QHash<QString, sqlite3_stmt*> idle;

    ~Private() { shut(); }
    // Opens the engine on a file. mode: "ro" or "rw" an existing one, "rwc" a new one.
    void openFile(const QString& file, const char* mode);
    void shut();
    sqlite3* engine() const;

    // The statement started with its values, waiting for other workstations.
    std::shared_ptr<PreparedStatement> start(const Sql& statement);
    std::shared_ptr<PreparedStatement> prepare(const QString& text);
    // A statement of its own for each user, read by the engine once and kept when it is given back.
    sqlite3_stmt* take(const QString& text);
    void giveBack(const QString& text, sqlite3_stmt* statement);
    // BEGIN, COMMIT and their kin, waiting for other workstations.
    void control(const QString& statement, BusyWait wait = BusyWait());
    // The rows of a statement that was started, to their end.
    std::vector<QVariantList> readRows(PreparedStatement& statement) const;
    [[noreturn]] void fail(PreparedStatement& statement) const;
    bool tryStart(PreparedStatement& statement, const Sql& sql);
};

// The engine's last failure.
StoreError engineError(sqlite3* engine);
// After a failure: waits for another try when it was another workstation's lock, else throws it.
void waitOrThrow(sqlite3* engine, BusyWait& wait);
// One step of a statement; true when it gave a row. A first step that met another workstation's lock is tried
// again; later ones hold a lock of their own.
bool stepped(sqlite3_stmt* statement, BusyWait wait = BusyWait());
// Throws when a statement asks for another number of values than it was given.
void requireValues(int asked, const QVariantList& given);
// The test door of Connection::setStatementHook.
void tellStatement(const QString& text);
// Of equal names the first counts.
std::shared_ptr<const RecordsetColumns> columnsOf(const QStringList& names, const QList<ColumnKind>& kinds);
// The kind that a table declares: "CURRENCY_INTEGER DEFAULT 0". An empty text is Unknown.
ColumnKind declaredKind(const QString& type);
