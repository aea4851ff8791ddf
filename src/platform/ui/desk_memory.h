#pragma once
#include <QVariant>

class QString;
class QWidget;

// What the desk of a person looked like: the places of windows, the widths of columns and the sorts of lists,
// kept for the next time. While no file is open nothing is kept, and a file that cannot be written hinders
// nobody.
namespace desk_memory {
void open(const QString& file);
void close();
void keep(const QString& what, const QVariant& value);
QVariant kept(const QString& what);  // invalid: nothing

// The widths of the columns of a list on its screen.
void keepWidths(const QWidget* list, const QStringList& widths);
QStringList keptWidths(const QWidget* list);
// The column that a list is sorted by, counted from 1, negative for downwards; 0: none.
void keepSort(const QWidget* list, int sort);
int keptSort(const QWidget* list);
}  // namespace desk_memory
