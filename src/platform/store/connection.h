#pragma once
#include "platform/store/recordset.h"
#include "platform/store/sql.h"
#include "platform/store/store_error.h"

#include <functional>

struct sqlite3;

// One connection to the store, a file or a PostgreSQL server (place.h). Every failure is a StoreError. Values
// never enter SQL text: they are bound.
//
// The dialect that statements may use: the words True and False mean the stored -1 and 0; "SET tbl.Col ="
// loses its table; RIGHT JOIN, parenthesised joins and "1<>1" work; text compares without regard to (ASCII)
// case, LIKE folds all letters. Prepared statements are kept and used again.
//
// When another workstation holds the store, a statement is tried again for at most five seconds, calling the
// idle hook in between, and then fails with StoreError::busy.
class Connection {
  public:
    Connection();
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    // Opens an existing store with its password and brings it to this program's schema version: throws for a
    // missing, empty, garbage, read-only file, a file of another program, a server that is away, a database
    // without our books, a newer schema, a wrong password. Nothing is written then.
    void open(const QString& place, const QString& password);
    // Makes a new store file with this password and no tables, or takes an empty database for one. Throws
    // when the file exists, or the database holds anything.
    void create(const QString& place, const QString& password);
    // Opens a store to look at it: no schema step is applied and nothing can be written. Throws as above, and
    // for a file whose last unit was broken off, which only opening it to write can undo.
    void openToRead(const QString& place);
    void close();
    bool isOpen() const;
    // Whether a program that had the file open ended without closing it. Stays so until it is settled, when
    // the file has been found sound. Never of a server, which recovers by itself.
    bool wasLeftOpen() const;
    void settleLeftOpen();
    QString path() const;

    // Rows of a SELECT, read to the end.
    Recordset execute(const Sql& statement);
    // An updatable set over one table: the rows that the clause selects ("WHERE RefNo = ?", in its order), or
    // none for an empty clause, to add to.
    Recordset openTable(const QString& table, const Sql& where = {});
    // Any other statement; returns the number of rows it changed.
    qint64 run(const Sql& statement);
    // A write of a unit, of which nobody asks how many rows it changed. A server is told of it with the next
    // statement or the commit, which throws its failure and loses the unit.
    void runLater(const Sql& statement);
    // The same statement for many rows of values, prepared once: all of them or none.
    void runMany(const QString& statement, const std::vector<QVariantList>& rows);

    bool inTransaction() const { return depth_ > 0; }
    // Throws when the engine has undone the unit of work by itself, as it does on a full disk. Every
    // statement asks.
    void requireUnit() const;

    // The declared types of a table's columns, upper-cased, by lower-cased column name. Read once.
    const QHash<QString, QString>& columnTypes(const QString& table);

    // Called while waiting for another workstation; null: sleep only.
    static void setIdleHook(std::function<void()> hook);
    // Test door: called before each statement that writes, with its text; may throw, or end the process.
    static void setStatementHook(std::function<void(const QString&)> hook);

    // The handle of a file's engine, for measures and tests; not to be asked for on a server.
    sqlite3* handle() const;

  private:
    friend class Transaction;
    friend class Recordset;
    friend class BulkReader;
    friend class BulkWriter;
    struct Private;
    std::shared_ptr<const RecordsetColumns> tableColumns(const QString& table);
    std::unique_ptr<Private> d_;
    int depth_ = 0;
};
