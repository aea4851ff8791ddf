#pragma once
#include "platform/store/connection.h"

#include <QDate>

// The documents ("S" sales, "P" purchase) and items that wait for the end of day. One row for a document, one
// for an item. Errors are thrown to the enclosing save.
void QueueBookForPosting(Connection& store, const QString& bookId, const QString& reference,
                         const QString& contact, const QDate& date);
void QueueItemForPosting(Connection& store, const QString& itemCode);
void RemoveForPosting(Connection& store, const QString& bookId, const QString& reference);
// The item stays while a waiting document has a line of it: that one's costing is still to come.
void RemoveItemForPosting(Connection& store, const QString& itemCode);
bool HasPendingPosting(Connection& store);  // errors are passed over: false
