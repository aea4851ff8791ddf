#pragma once
#include "platform/progress.h"

#include <QStringList>

class Connection;

// Care for the store file as a whole, with the progress box. The engine works beside the window meanwhile, on
// a connection of its own; saves of other workstations wait until it has read the file.

// Looks through the file and throws StoreError when it is damaged. One that is sound counts as closed in
// peace from then on.
void checkStore(Connection& store, Progress& progress);
// What is wrong with the store; empty for a sound one. A file is looked through page by page and index by
// index, of a server's books every row is read.
QStringList damagesOf(Connection& store);

// Copies the store as it stands into the folder "Backup" beside it: under a temporary name first, checked,
// then as "Quorvel-20260131-174500.mdb", by the session's clock. The newest seven stay. Throws StoreError,
// and leaves the store and the other copies as they are then. The copies of a server are made there: this
// does nothing for its books.
void backUpStore(Connection& store, Progress& progress);
inline constexpr const char* backupFolder = "Backup";
