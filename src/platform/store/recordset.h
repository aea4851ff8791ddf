#pragma once
#include "platform/currency.h"

#include <QDateTime>
#include <QHash>
#include <QString>
#include <QVariant>
#include <QVariantList>
#include <memory>
#include <vector>

class Connection;
struct Sql;

// What a column holds: as its table declares it, or as the statement computes it: COUNT gives an integer, SUM
// an amount. Unknown: computed in another way; it is of the kind that it is read as.
enum class ColumnKind { Unknown, Text, Integer, Flag, Date, Currency };

// The columns of a set: where each name stands, exact and lower-cased, and the kinds by position.
struct RecordsetColumns {
    QHash<QString, int> positions;
    QList<ColumnKind> kinds;
};

// Rows of a query, read to their end when it is opened, walked by column name (no regard to case).
// A set opened with Connection::openTable can also add and change rows.
//
// Reads of a column that is not there throw StoreError; a null reads as empty text, 0, false or a null date
// (ask isNull where it matters). Reads past the end throw StoreError noCurrentRow. A number that is read as
// another kind of number would be wrong by a factor of ten thousand: currency and integer throw StoreError
// typeMismatch.
class Recordset {
  public:
    bool eof() const { return position_ >= rowCount(); }
    void moveNext() { ++position_; }
    void moveFirst() { position_ = 0; }
    void moveLast() { position_ = rowCount() - 1; }
    void movePrevious() { --position_; }
    bool bof() const { return position_ < 0; }
    qsizetype rowCount() const { return static_cast<qsizetype>(rows_.size()); }

    ColumnKind kind(const QString& column) const;
    bool isNull(const QString& column) const;
    QVariant value(const QString& column) const;
    QString text(const QString& column) const;       // as stored, untrimmed
    QString textAt(int column) const;                // by position, from 0; not of an updatable set
    QString trimmed(const QString& column) const;    // without blanks at both ends
    Currency currency(const QString& column) const;  // of a currency column
    qint64 integer(const QString& column) const;     // of any other number
    bool flag(const QString& column) const;          // any value but 0 is true
    QDate date(const QString& column) const;
    QDateTime dateTime(const QString& column) const;

    // Only on a set of Connection::openTable. Values: QString, Currency, bool, QDate, QDateTime, qint64/int.
    // addNew starts a row; set gives a column of it, or of the current row; update writes what was set.
    // update throws StoreError: refused for a broken key, noCurrentRow when the row has gone.
    void addNew();
    void set(const QString& column, const QVariant& value);
    void set(const QString& column, Currency value) { set(column, QVariant::fromValue(value)); }
    void set(const QString& column, const char* value) { set(column, QString::fromUtf8(value)); }
    void update();
    // As update, for a new row that nobody asks for again: the set does not keep it (Connection::runLater).
    void addLater();

  private:
    friend class Connection;
    const QVariantList& current() const;
    int columnIndex(const QString& column) const;
    QVariant valueAt(int column) const;
    Sql insertStatement() const;
    Sql updateStatement() const;
    void insertRow();
    void updateRow();
    void keepChanges(QVariantList& row) const;

    Connection* connection_ = nullptr;
    QString table_;  // empty: read only
    std::shared_ptr<const RecordsetColumns> columns_;
    int columnCount_ = 0;
    std::vector<QVariantList> rows_;
    qsizetype position_ = 0;
    bool adding_ = false;
    QList<std::pair<QString, QVariant>> changes_;
};
