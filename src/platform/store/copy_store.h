#pragma once
#include <QList>
#include <QString>

class Connection;

// What the rows of a table come to, in whatever order they stand: their number, and the sum of a hash over
// each. The numbers that a table only gives its rows to tell them apart do not count.
struct TableFingerprint {
    QString table;
    qint64 rows = 0;
    quint64 sum = 0;
    bool operator==(const TableFingerprint&) const = default;
};

// Of all tables of the books, by name.
QList<TableFingerprint> fingerprintOf(Connection& store);

// Copies all rows of the books into a store that has the same tables and nothing in them, engine to engine.
// Within units of both. Throws StoreError, also when the copy is not what it was made from.
void copyRows(Connection& from, Connection& to);
