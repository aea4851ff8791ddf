#pragma once
#include <QDir>
#include <functional>

class Connection;

// Draws the first page of each report over the firm of this store, as NAME.png in the folder, and tells each
// file. Throws std::runtime_error for a report that finds nothing to print and for a file that is not
// written.
void drawReports(Connection& store, const QDir& folder, const std::function<void(const QString&)>& say);
