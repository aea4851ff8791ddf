#include "support/screen_driver.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QTest>
#include <QTreeView>

#include <gtest/gtest.h>

namespace person {

QWidget* control(QWidget* screen, const QString& name) {
    auto* found = screen->objectName() == name ? screen : screen->findChild<QWidget*>(name);
    EXPECT_TRUE(found) << qPrintable(screen->objectName()) << " has no " << qPrintable(name);
    return found;
}

void settle() {
    for (int turn = 0; turn < 5; ++turn) {
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void look(QWidget* screen) {
    screen->show();
    screen->window()->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(screen->window()));
    settle();
}

void goTo(QWidget* screen, const QString& name) {
    if (QWidget* field = control(screen, name)) field->setFocus(Qt::ShortcutFocusReason);
    settle();
}

static QWidget* receiver() {
    if (QWidget* popup = QApplication::activePopupWidget()) return popup;
    if (QWidget* box = QApplication::activeModalWidget())
        return box->focusWidget() ? box->focusWidget() : box;
    if (QWidget* focus = QApplication::focusWidget()) return focus;
    return QApplication::activeWindow();
}

void press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QWidget* target = receiver();
    ASSERT_TRUE(target) << "no window takes keys";
    QTest::keyClick(target, key, modifiers);
    settle();
}

// Latin-1 keys as keys, any other as the input method would commit them.
static void typeOne(QWidget* target, QChar key) {
    if (key.unicode() < 0x80) return QTest::keyClick(target, key.toLatin1());
    QInputMethodEvent composed;
    composed.setCommitString(key);
    QApplication::sendEvent(target, &composed);
}

void type(const QString& text) {
    for (const QChar key : text) {
        QWidget* target = receiver();
        ASSERT_TRUE(target) << "no window takes keys";
        typeOne(target, key);
    }
    settle();
}

void fill(QWidget* screen, const QString& name, const QString& text) {
    goTo(screen, name);
    press(Qt::Key_A, Qt::ControlModifier);
    if (text.isEmpty()) return press(Qt::Key_Delete);
    type(text);
}

void paste(const QString& text) {
    QApplication::clipboard()->setText(text);
    press(Qt::Key_V, Qt::ControlModifier);
}

void click(QWidget* widget) {
    if (widget) QTest::mouseClick(widget, Qt::LeftButton);
    settle();
}

void click(QWidget* screen, const QString& name) { click(control(screen, name)); }

void doubleClickRow(QAbstractItemView* list, int row, int column) {
    const QModelIndex index = list->model()->index(row, column);
    list->scrollTo(index);
    const QPoint place = list->visualRect(index).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place);
    settle();
}

static QHeaderView* headerOf(QAbstractItemView* list) {
    if (auto* table = qobject_cast<QTableView*>(list)) return table->horizontalHeader();
    if (auto* tree = qobject_cast<QTreeView*>(list)) return tree->header();
    return nullptr;
}

void clickHeader(QAbstractItemView* list, int column) {
    QHeaderView* header = headerOf(list);
    ASSERT_TRUE(header);
    const QPoint place(header->sectionViewportPosition(column) + header->sectionSize(column) / 2,
                       header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, place);
    settle();
}

QString read(QWidget* screen, const QString& name) {
    QWidget* shown = control(screen, name);
    if (auto* line = qobject_cast<QLineEdit*>(shown)) return line->text();
    if (auto* combo = qobject_cast<QComboBox*>(shown)) return combo->currentText();
    if (auto* label = qobject_cast<QLabel*>(shown)) return label->text();
    if (auto* button = qobject_cast<QAbstractButton*>(shown)) return button->text();
    return {};
}

QString focusName() {
    const QWidget* focus = QApplication::focusWidget();
    return focus ? focus->objectName() : QString();
}

}  // namespace person
