#pragma once
#include "platform/currency.h"
#include "platform/store/sql.h"

#include <QString>
#include <functional>
#include <memory>
#include <vector>

class BulkRows;
class Engine;
class Connection;
struct sqlite3_stmt;

// One ordered scan over many rows at the speed of the engine: columns by position, no row kept. The engine
// reads a statement once and keeps it, as it does those of the connection.
class BulkReader {
  public:
    BulkReader(Connection& store, const Sql& statement);
    ~BulkReader();
    BulkReader(const BulkReader&) = delete;
    BulkReader& operator=(const BulkReader&) = delete;

    bool next();
    qint64 integer(int column) const;
    Currency currency(int column) const { return Currency::fromTenThousandths(integer(column)); }
    bool isNull(int column) const;
    // The column's UTF-8 bytes; valid until the next row.
    QByteArrayView bytes(int column) const;
    QString text(int column) const { return QString::fromUtf8(bytes(column)); }

  private:
    friend Engine& engineOf(const Connection& store);
    static Engine& engineOf(const Connection& store);

    Connection& store_;
    QString text_;
    sqlite3_stmt* statement_ = nullptr;  // of a file
    std::unique_ptr<BulkRows> rows_;     // of a server
};

// The same write for many rows: bind by position, step, again.
//
// What becomes of a row that the store refuses is said when the writer is made. Thrown: as
// Connection::runLater throws it. PassedOver: it stays as it is, and the others are written; only a busy
// store and a lost unit are thrown. Such a writer has to be flushed in the end, for a server is told of many
// rows at once.
class BulkWriter {
  public:
    enum Refused { Thrown, PassedOver };
    BulkWriter(Connection& store, const QString& statement, Refused refused = Thrown);
    ~BulkWriter();
    BulkWriter(const BulkWriter&) = delete;
    BulkWriter& operator=(const BulkWriter&) = delete;

    // Positions from 1. What is not bound is null.
    void bind(int position, qint64 value);
    void bind(int position, Currency value) { bind(position, value.tenThousandths()); }
    void bind(int position, const QString& value);
    void step();
    void flush();

  private:
    void keep(int position, const QVariant& value);
    void passOver(const std::function<void()>& write);

    Connection& store_;
    QString text_;
    Refused refused_;
    sqlite3_stmt* statement_ = nullptr;  // of a file
    QVariantList values_;                // for a server
    std::vector<QVariantList> rows_;
};
