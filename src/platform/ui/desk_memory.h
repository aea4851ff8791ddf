#pragma once
#include <QVariant>

class QString;

// What the desk of a person looked like: the places of windows and the widths of columns, kept for the next
// time. While no file is open nothing is kept, and a file that cannot be written hinders nobody.
namespace desk_memory {
void open(const QString& file);
void close();
void keep(const QString& what, const QVariant& value);
QVariant kept(const QString& what);  // invalid: nothing
}  // namespace desk_memory
