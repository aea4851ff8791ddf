#include "platform/ui/list_hand.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QMenu>

static constexpr int digitKeys = 9;

static QList<int> rowsToCopy(const QAbstractItemView* list) {
    const QAbstractItemModel* model = list->model();
    QList<int> marked;
    for (int row = 0; row < model->rowCount(); ++row)
        if (model->index(row, 0).data(Qt::CheckStateRole).toInt() == Qt::Checked) marked += row;
    if (!marked.isEmpty()) return marked;
    return list->currentIndex().isValid() ? QList<int>{list->currentIndex().row()} : QList<int>();
}

QString list_hand::rowsAsText(const QAbstractItemView* list) {
    const QAbstractItemModel* model = list->model();
    QStringList lines;
    for (const int row : rowsToCopy(list)) {
        QStringList cells;
        for (int column = 0; column < model->columnCount(); ++column)
            cells += model->index(row, column).data().toString();
        lines += cells.join(u'\t');
    }
    return lines.join(u'\n');
}

void list_hand::copyRows(const QAbstractItemView* list) {
    if (const QString text = rowsAsText(list); !text.isEmpty()) QApplication::clipboard()->setText(text);
}

int list_hand::sortColumn(const QKeyEvent* event) {
    const int digit = event->key() - Qt::Key_1;
    const bool isControl = (event->modifiers() & ~Qt::KeypadModifier) == Qt::ControlModifier;
    return isControl && digit >= 0 && digit < digitKeys ? digit : -1;
}

static void pressLater(QAbstractItemView* list, int key, Qt::KeyboardModifiers modifiers = {}) {
    QApplication::postEvent(list, new QKeyEvent(QEvent::KeyPress, key, modifiers));
}

static void addSorts(QMenu* menu, QAbstractItemView* list) {
    QMenu* sorts = menu->addMenu("Sort by");
    const QAbstractItemModel* model = list->model();
    for (int column = 0; column < std::min(model->columnCount(), digitKeys); ++column) {
        const int key = Qt::Key_1 + column;
        const QString heading = model->headerData(column, Qt::Horizontal).toString().replace("&", "&&");
        sorts->addAction(heading + '\t' + QKeySequence(Qt::CTRL | Qt::Key(key)).toString(), list,
                         [list, key] { pressLater(list, key, Qt::ControlModifier); });
    }
}

void list_hand::showMenu(QAbstractItemView* list, const QList<Key>& keys, bool sorts, const QPoint& place) {
    auto* menu = new QMenu(list);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const Key& offered : keys)
        menu->addAction(QString("%1\t%2").arg(offered.caption, QKeySequence(offered.key).toString()), list,
                        [list, key = offered.key] { pressLater(list, key); });
    menu->addAction("Copy\tCtrl+C", list, [list] { copyRows(list); });
    if (sorts) addSorts(menu, list);
    menu->popup(place);
}
