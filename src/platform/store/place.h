#pragma once
#include <QString>
#include <QStringList>

class Connection;
class Engine;

// A place of books that Connection opens and creates is the path of a file, or the connection URI of a
// PostgreSQL server.
//
// On a server, the password that is given to Connection is the user's on that server; an empty one leaves it
// to the URI and the usual places of the client library. StoreError needsPassword tells that there is none,
// or another one. Nothing is written to a database that is none of ours, or of a newer schema; one that is to
// be made stays untouched until the first step of its schema.
bool isServer(const QString& place);
inline constexpr int needsPassword = -2147217843;

bool isOnServer(const Connection& store);
// The table's key column: a number that a row has for good. Throws StoreError for a table without one.
QString keyOf(Connection& store, const QString& table);
// The tables of the books, by name.
QStringList tablesOf(Connection& store);

// The engine of an open connection, for this folder.
Engine& engineOf(const Connection& store);
