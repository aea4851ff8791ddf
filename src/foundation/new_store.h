#pragma once
#include "platform/store/copy_store.h"

#include <QString>
#include <functional>

class Connection;

// Makes a new store at this place, with the tables of this program and what is filled in: whole or not at
// all. Throws StoreError; the file must not exist, and the database of a server must be empty.
void makeStore(const QString& place, const std::function<void(Connection& store)>& fill);

// Makes a new store at the second place with all books of the one at the first, which nobody can write
// meanwhile. Returns the fingerprint of both: they are equal. Throws as above.
QList<TableFingerprint> copyStore(const QString& from, const QString& to);
