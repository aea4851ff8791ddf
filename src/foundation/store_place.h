#pragma once
#include <QString>

// Where the books of this workstation are: the connection URI that is the one line of "Store.ini" beside the
// program, or else the file beside it.
QString storePlace();

// The password that a store is opened with: a file's is the program's own, a server asks its user's, which
// the URI and the usual places of PostgreSQL's client library give.
QString passwordFor(const QString& place);
