#pragma once
#include <QString>

class Connection;

// What makes a file a store of this program, and the checks of one that is to be opened. Each throws
// StoreError with a text for people, and none writes.
void requireFile(const QString& path);          // before it is opened: there, not empty
void requireWritableFile(const QString& path);  // and writable, with its folder
void requireOwnStore(Connection& store);        // this program's mark, and no newer schema
void requireWritable(Connection& store);
void requirePassword(Connection& store, const QString& password);

// Writes the mark and the password's verifier into a new file.
void markOwnStore(Connection& store, const QString& password);

// Every commit is on the disk when it returns, the end of its journal, too, and the file may lie in a shared
// folder.
void setWorkingMode(Connection& store);
