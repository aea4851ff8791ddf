#pragma once
#include "platform/store/engine.h"
#include "platform/store/row_watch.h"
#include "platform/store/server_link.h"

#include <map>

// The table that a statement writes, and what becomes of its rows; no name: it writes none.
struct WrittenRows {
    QString table;
    RowWatch::Change change = RowWatch::Changed;
};

// A statement that the server has parsed once, and the columns it gives.
struct ServerStatement {
    QByteArray text;
    QByteArray name;  // empty: not parsed yet
    qsizetype values = 0;
    qsizetype compared = 0;  // from this one on the values are only compared with columns
    bool writes = false;
    bool changesTables = false;
    bool isPlannedAnew = false;
    WrittenRows rows;
    std::shared_ptr<const RecordsetColumns> columns;
    int columnCount = 0;
    std::vector<unsigned> types;  // of the columns
};

// The books in a database of a PostgreSQL server. Whoever writes holds the one advisory lock of the books.
class ServerEngine : public Engine {
  public:
    ServerEngine(const QString& uri, const QString& password);

    ReadRows execute(const Sql& statement) override;
    qint64 run(const Sql& statement) override;
    void runLater(const Sql& statement) override;
    void runMany(const QString& statement, const std::vector<QVariantList>& rows) override;
    void readAhead(const std::vector<Sql>& statements, ReadAhead::Until until) override;
    void forgetAhead() override { ahead_.clear(); }
    qint64 insert(const Sql& statement, const QString& key) override;
    std::unique_ptr<BulkRows> read(const Sql& statement) override;
    QStringList tables() override;
    QStringList definitions() override;
    QList<TableColumn> readColumns(const QString& table) override;
    void begin(Turn turn) override;
    void commit() override;
    void undo() override;
    void setPoint(int level) override;
    void keepPoint(int level) override;
    void undoToPoint(int level) override;
    bool hasUndoneUnit() const override;
    qint64 version() override;
    void setVersion(qint64 version) override;
    void prepare() override;
    void rowsAreCopied() override;
    void tellRows() override {}

    // From here on nothing can be written.
    void refuseWrites();
    // The value of a statement without values; empty for null or no row.
    QString valueOf(const char* statement);

  private:
    friend class ServerRows;
    struct Table {
        unsigned id;
        QString name;
        QList<TableColumn> columns;
        QList<int> places;  // the server's numbers of the columns
    };
    ServerStatement& known(const QString& text);
    ServerResult answer(ServerStatement& statement, const QVariantList& values);
    ServerStatement& heard(const QString& text);
    void tell(const WrittenRows& rows, const pg_result* keys) const;
    QVariantList comparable(const ServerStatement& statement, QVariantList values);
    template <class Ask>
    auto asked(const ServerStatement& statement, const QVariantList& values, const Ask& ask);
    ServerResult answerOnce(ServerStatement& statement, const QVariantList& values);
    ServerResult changeTables(const ServerStatement& statement);
    std::vector<ServerResult> guarded(std::vector<ServerCommand> commands);
    void add(std::vector<ServerCommand>& commands, ServerStatement& statement, const QVariantList& values);
    std::vector<ServerResult> sendWithLater(std::vector<ServerCommand> commands);
    void sendLater();
    void drop(std::vector<ServerCommand>& commands, size_t from);
    void learnColumns(ServerStatement& statement, const pg_result* result, const QString& text);
    ColumnKind kindOf(unsigned table, int place);
    const std::vector<Table>& catalogue();
    void aheadIsStale();
    ServerResult takeAhead(const Sql& sql);
    bool tryBegin();
    void connectAnew();

    ServerLink link_;
    bool inUnit_ = false;
    std::map<QString, ServerResult> ahead_;  // by statement and values
    bool outlivesWrites_ = false;
    std::vector<ServerCommand> later_;  // of the unit, not sent yet: writes and points
    int cursors_ = 0;
    int parsed_ = 0;
    QHash<QString, std::shared_ptr<ServerStatement>> statements_;
    std::vector<Table> catalogue_;
};

// What makes a database a store of this program, and the check of one that is to be made. Both throw
// StoreError with a text for people, and write nothing.
void requireOwnDatabase(Engine& engine, const QString& place);
void requireEmptyDatabase(Engine& engine, const QString& place);
