#include "platform/store/copy_store.h"

#include "platform/store/bulk.h"
#include "platform/store/engine.h"
#include "platform/store/place.h"

#include <QCryptographicHash>
#include <QtEndian>

namespace {
constexpr const char* rowNumber = "RowNo";

// What a costing of all notes for itself while it runs belongs to that run.
bool isScratch(const QString& table) { return table.startsWith("Stock", Qt::CaseInsensitive); }

QStringList booksOf(Connection& store) {
    QStringList tables;
    for (const QString& table : tablesOf(store))
        if (!isScratch(table)) tables += table.toLower();
    tables.sort();
    return tables;
}

QStringList columnsOf(Connection& store, const QString& table) {
    QStringList names;
    for (const TableColumn& column : engineOf(store).tableColumns(table)) names += column.name.toLower();
    return names;
}

Sql rowsOf(const QString& table, const QStringList& columns) {
    return QString("SELECT %1 FROM %2").arg(columns.join(", "), table);
}

// A null is no empty text.
quint64 hashOf(const BulkReader& row, qsizetype columns) {
    QCryptographicHash hash(QCryptographicHash::Md5);
    for (int column = 0; column < columns; ++column) {
        hash.addData(row.isNull(column) ? "n" : "v");
        hash.addData(row.bytes(column));
        hash.addData(QByteArrayView("\0", 1));
    }
    return qFromBigEndian<quint64>(hash.result().constData());
}

TableFingerprint fingerprintOf(Connection& store, const QString& table) {
    QStringList columns = columnsOf(store, table);
    columns.removeAll(QString(rowNumber).toLower());
    TableFingerprint found{table};
    for (BulkReader row(store, rowsOf(table, columns)); row.next(); ++found.rows)
        found.sum += hashOf(row, columns.size());
    return found;
}

// Many rows in one statement: a server answers each, and is far away.
class RowWriter {
  public:
    RowWriter(Connection& store, const QString& table, const QStringList& columns)
        : store_(store),
          head_(QString("INSERT INTO %1 (%2) VALUES ").arg(table, columns.join(", "))),
          marks_(u'(' + QStringList(columns.size(), "?").join(u',') + u')') {}

    void add(const BulkReader& row, qsizetype columns) {
        for (int column = 0; column < columns; ++column)
            values_ += row.isNull(column) ? QVariant() : QVariant(row.text(column));
        if (++rows_ == rowsOfStatement) write();
    }
    void write() {
        if (rows_ == 0) return;
        store_.run({head_ + QStringList(rows_, marks_).join(u','), values_});
        rows_ = 0;
        values_.clear();
    }

  private:
    static constexpr int rowsOfStatement = 200;
    Connection& store_;
    QString head_;
    QString marks_;
    QVariantList values_;
    int rows_ = 0;
};

void copyTable(Connection& from, Connection& to, const QString& table) {
    const QStringList columns = columnsOf(from, table);
    RowWriter writer(to, table, columns);
    for (BulkReader row(from, rowsOf(table, columns)); row.next();) writer.add(row, columns.size());
    writer.write();
}
}  // namespace

QList<TableFingerprint> fingerprintOf(Connection& store) {
    QList<TableFingerprint> found;
    for (const QString& table : booksOf(store)) found += fingerprintOf(store, table);
    return found;
}

void copyRows(Connection& from, Connection& to) {
    for (const QString& table : booksOf(from)) copyTable(from, to, table);
    engineOf(to).rowsAreCopied();
    if (fingerprintOf(from) != fingerprintOf(to))
        throw StoreError(StoreError::general, "The copy differs from the store that it was made from.");
}
