#pragma once
#include <QList>
#include <QPoint>
#include <QString>
#include <Qt>

class QAbstractItemView;
class QKeyEvent;

// What a hand does with any list or grid, beside what its screen makes of keys.
namespace list_hand {
// A key that does something in a list, in the words of its menu.
struct Key {
    Qt::Key key;
    const char* caption;
};

// The rows that are marked by their boxes, or the selected one: a line each, the cells as they are shown with
// tabs between.
QString rowsAsText(const QAbstractItemView* list);
void copyRows(const QAbstractItemView* list);
// Ctrl+1 to Ctrl+9: the column that the key sorts by, from 0; -1: another key.
int sortColumn(const QKeyEvent* event);
// The menu of the list where the event of a right click asks for it: copies, and does what these keys do.
void showMenu(QAbstractItemView* list, const QList<Key>& keys, bool sorts, const QPoint& place);
}  // namespace list_hand
