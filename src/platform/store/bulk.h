#pragma once
#include "platform/currency.h"
#include "platform/store/sql.h"

#include <QString>

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
    Connection& store_;
    QString text_;
    sqlite3_stmt* statement_ = nullptr;
};

// The same write for many rows: bind by position, step, again.
class BulkWriter {
  public:
    BulkWriter(Connection& store, const QString& statement);
    ~BulkWriter();
    BulkWriter(const BulkWriter&) = delete;
    BulkWriter& operator=(const BulkWriter&) = delete;

    void bind(int position, qint64 value);  // positions from 1
    void bind(int position, Currency value) { bind(position, value.tenThousandths()); }
    void bind(int position, const QString& value);
    void step();

  private:
    Connection& store_;
    QString text_;
    sqlite3_stmt* statement_ = nullptr;
};
