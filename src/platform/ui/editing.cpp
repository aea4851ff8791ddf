#include "platform/ui/editing.h"

#include "platform/ui/combo_box.h"
#include "platform/ui/list_hand.h"
#include "platform/ui/text_box.h"

#include <QAbstractItemView>
#include <QApplication>

namespace editing {

static QLineEdit* activeLine() {
    QWidget* focus = QApplication::focusWidget();
    if (auto* combo = qobject_cast<QComboBox*>(focus)) return combo->lineEdit();
    return qobject_cast<QLineEdit*>(focus);
}

void cut() {
    if (QLineEdit* line = activeLine(); line && !line->isReadOnly()) line->cut();
}

// Of a list, its rows.
void copy() {
    if (QLineEdit* line = activeLine())
        line->copy();
    else if (const auto* list = qobject_cast<QAbstractItemView*>(QApplication::focusWidget()))
        list_hand::copyRows(list);
}

void paste() {
    if (QLineEdit* line = activeLine(); line && !line->isReadOnly()) line->paste();
}

void selectAll() {
    if (QLineEdit* line = activeLine()) line->selectAll();
}

}  // namespace editing
