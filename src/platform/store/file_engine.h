#pragma once
#include "platform/store/busy_wait.h"
#include "platform/store/engine.h"

#include <QSqlDatabase>
#include <QSqlQuery>

struct sqlite3;
struct sqlite3_stmt;

// A statement that the engine has read once, and the columns it gives.
struct PreparedStatement {
    QSqlQuery query;
    std::shared_ptr<const RecordsetColumns> columns;
    int columnCount = 0;
    int valueCount = 0;
    bool writes = false;
};

// The books in one file.
class FileEngine : public Engine {
  public:
    // mode: "ro" or "rw" an existing file, "rwc" a new one.
    FileEngine(const QString& file, const char* mode);
    ~FileEngine() override;
    FileEngine(const FileEngine&) = delete;
    FileEngine& operator=(const FileEngine&) = delete;

    ReadRows execute(const Sql& statement) override;
    qint64 run(const Sql& statement) override;
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
    void prepare() override {}
    void rowsAreCopied() override {}
    void tellRows() override;

    sqlite3* handle() const;
    // A statement of its own for each user, read by the engine once and kept when it is given back.
    sqlite3_stmt* take(const QString& text);
    void giveBack(const QString& text, sqlite3_stmt* statement);

  private:
    // The statement started with its values, waiting for other workstations.
    std::shared_ptr<PreparedStatement> start(const Sql& statement);
    std::shared_ptr<PreparedStatement> prepared(const QString& text);
    bool tryStart(PreparedStatement& statement, const Sql& sql);
    // BEGIN, COMMIT and their kin, waiting for other workstations.
    void control(const QString& statement, Turn turn = Turn::Any);
    void undoBy(const QString& statements) const;
    // The rows of a statement that was started, to their end.
    std::vector<QVariantList> readRows(PreparedStatement& statement) const;
    [[noreturn]] void fail(PreparedStatement& statement) const;

    QString name_;
    QSqlDatabase database_;
    QHash<QString, std::shared_ptr<PreparedStatement>> prepared_;
    // Statements of the bulk reader and writer, and BEGIN and its kin, that nobody uses at the moment.
    QHash<QString, sqlite3_stmt*> idle_;
};

// One step of a statement; true when it gave a row. A first step that met another workstation's lock is tried
// again; later ones hold a lock of their own.
bool stepped(sqlite3_stmt* statement, Turn turn = Turn::Any);
