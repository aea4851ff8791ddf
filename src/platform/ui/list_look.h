#pragma once
#include <QString>

class QAbstractItemView;
class QWidget;

// How every list and grid of the program looks.
namespace list_look {
// The room between the edge of a cell and its text, in pixels: six points.
int padding(const QWidget* list);
// One and a half times the height of the text, in pixels.
int rowHeight(const QWidget* list);
// Gives the list the one delegate of all lists: padded cells, high rows, and a selection that tells whether
// the list has the focus.
void dress(QAbstractItemView* list);
// What stands in the list in grey while it has no rows: what fills it, or what was looked for in vain.
void sayWhenEmpty(QAbstractItemView* list, const QString& text);
// What stands in a list that was searched in vain: "Nothing found for "steel" in Description."
QString nothingFound(const QString& lookedFor, const QString& where = {});
}  // namespace list_look
