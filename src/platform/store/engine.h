#pragma once
#include "platform/store/connection.h"
#include "platform/store/place.h"
#include "platform/store/read_ahead.h"
#include "platform/store/transaction.h"

// The rows of a statement, read to their end.
struct ReadRows {
    std::shared_ptr<const RecordsetColumns> columns;
    int columnCount = 0;
    std::vector<QVariantList> rows;
};

struct TableColumn {
    QString name;
    QString type;  // in the words of the house: "CURRENCY_INTEGER"
    bool isKey = false;
};

// Rows of the bulk reader that come from a server: as BulkReader.
class BulkRows {
  public:
    virtual ~BulkRows() = default;
    virtual bool next() = 0;
    virtual qint64 integer(int column) const = 0;
    virtual bool isNull(int column) const = 0;
    virtual QByteArrayView bytes(int column) const = 0;
};

// What the engines do each in their own way. Failures are StoreErrors; a statement that fails has changed
// nothing and leaves the unit usable.
class Engine {
  public:
    virtual ~Engine() = default;

    virtual ReadRows execute(const Sql& statement) = 0;
    virtual qint64 run(const Sql& statement) = 0;
    // As Connection::runLater.
    virtual void runLater(const Sql& statement) { run(statement); }
    // The same write for each of these rows; where one is refused, none of them is written, and it is thrown.
    // Within a unit.
    virtual void runMany(const QString& statement, const std::vector<QVariantList>& rows) {
        for (const QVariantList& row : rows) run({statement, row});
    }
    // As class ReadAhead.
    virtual void readAhead(const std::vector<Sql>&, ReadAhead::Until) {}
    virtual void forgetAhead() {}
    // Runs an INSERT of one row and returns its number in the table's key column.
    virtual qint64 insert(const Sql& statement, const QString& key) = 0;
    virtual std::unique_ptr<BulkRows> read(const Sql& statement) = 0;

    virtual QStringList tables() = 0;
    // The tables, indexes and triggers that are there, to be compared with those that are to be.
    virtual QStringList definitions() = 0;
    // In the order of the table, read once. Throws when there is no such table.
    const QList<TableColumn>& tableColumns(const QString& table);
    // As keyOf of place.h.
    QString keyOf(const QString& table);

    // A unit, and points within it by their depth. What undoes does not throw.
    virtual void begin(Turn turn) = 0;
    virtual void commit() = 0;
    virtual void undo() = 0;
    virtual void setPoint(int level) = 0;
    virtual void keepPoint(int level) = 0;
    virtual void undoToPoint(int level) = 0;
    // Within a unit: whether the engine has undone it by itself.
    virtual bool hasUndoneUnit() const = 0;

    // The schema version; 0: a store without tables.
    virtual qint64 version() = 0;
    virtual void setVersion(qint64 version) = 0;
    // Makes ready what the tables of a new store stand on. Called in the unit that makes them.
    virtual void prepare() = 0;
    // Rows came in with the numbers that they had elsewhere: new ones get higher numbers.
    virtual void rowsAreCopied() = 0;
    // From here on each row that is written to a table with a watch is told to RowWatch.
    virtual void tellRows() = 0;

  protected:
    // None: there is no such table.
    virtual QList<TableColumn> readColumns(const QString& table) = 0;
    void forgetTables() { tables_.clear(); }

  private:
    QHash<QString, QList<TableColumn>> tables_;  // by lower-cased name
};

// Throws when a statement asks for another number of values than it was given.
void requireValues(qsizetype asked, const QVariantList& given);
// The test door of Connection::setStatementHook.
void tellStatement(const QString& text);
// Calls the idle hook of the window, unless this is work beside it.
void callIdleHook();
inline constexpr const char* busyText = "Another workstation is using the store. Please try again.";
// How many statements an engine keeps ready.
inline constexpr qsizetype keptStatements = 400;

// Of equal names the first counts.
std::shared_ptr<const RecordsetColumns> columnsOf(const QStringList& names, const QList<ColumnKind>& kinds);
// The kind that a table declares: "CURRENCY_INTEGER DEFAULT 0". An empty text is Unknown.
ColumnKind declaredKind(const QString& type);
// The kind of a column that the statement computes under this name.
ColumnKind computedKind(const QString& name, const QString& statement);
