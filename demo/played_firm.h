#pragma once
#include <QDir>

// Puts a fresh demo firm into the folder, which becomes the program's: its trade ends today. What an earlier
// played day left there goes. A "Store.ini" there names an empty database, which gets the firm then. Throws
// StoreError and std::runtime_error.
void freshDemoFirm(const QDir& folder);
