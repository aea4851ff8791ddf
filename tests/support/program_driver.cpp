#include "support/program_driver.h"

#include "platform/ui/data_grid.h"
#include "platform/ui/screen_registry.h"

#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QMenu>
#include <QPainter>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <stdexcept>

namespace person {

[[noreturn]] static void fail(const QString& text) { throw std::runtime_error(text.toStdString()); }

void waitFor(const std::function<bool()>& happened, const QString& what, int milliseconds) {
    settle();
    if (happened() || QTest::qWaitFor(happened, milliseconds)) return settle();
    const QWidget* focus = QApplication::focusWidget();
    fail(QString("waited in vain for %1; the focus is at %2 of %3")
             .arg(what, focusName(), focus ? focus->window()->objectName() : "nothing"));
}

static QWidget* visibleWindow(const QString& name) {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == name && window->isVisible()) return window;
    return nullptr;
}

QWidget* window(const QString& name) {
    waitFor([&] { return visibleWindow(name) != nullptr; }, "the window " + name);
    return visibleWindow(name);
}

bool isOpen(const QString& screenName) { return ScreenRegistry::instance().opened(screenName) != nullptr; }

QWidget* screen(const QString& name) {
    const auto hasFocus = [&] {
        const ChildScreen* opened = ScreenRegistry::instance().opened(name);
        return opened && opened->isVisible() && QApplication::focusWidget() &&
               (opened == QApplication::focusWidget() || opened->isAncestorOf(QApplication::focusWidget()));
    };
    waitFor(hasFocus, "the screen " + name);
    return ScreenRegistry::instance().opened(name);
}

static QAction* actionOf(const QString& name) {
    auto* action = window("mdiMain")->findChild<QAction*>(name);
    if (!action) fail("the main window has no " + name);
    return action;
}

// An item is reached only through menus that are offered themselves.
static bool isReachable(const QAction* action) {
    if (!action->isVisible() || !action->isEnabled()) return false;
    const auto* menu = qobject_cast<const QMenu*>(action->parent());
    return !menu || menu->menuAction() == action || isReachable(menu->menuAction());
}

bool isOffered(const QString& action) { return isReachable(actionOf(action)); }

void choose(const QString& action) {
    if (!isOffered(action)) fail(action + " is not offered");
    actionOf(action)->trigger();
    settle();
}

void throughModal(const QString& name, const std::function<void(QWidget* modal)>& inModal,
                  const std::function<void()>& action) {
    const QPointer<QWidget> before = QApplication::activeWindow();
    bool done = false;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
        QWidget* modal = QApplication::activeModalWidget();
        if (done || !modal || modal->objectName() != name || !modal->isVisible()) return;
        done = true;
        inModal(modal);
    });
    watch.start(10);
    action();
    waitFor([&] { return done; }, "the window " + name);
    // As a desk does when a modal window goes.
    if (before && before->isVisible() && !QApplication::activeWindow()) before->activateWindow();
    settle();
}

void walkTo(const QString& field, Qt::Key key) {
    settle();
    for (int step = 0; focusName() != field; ++step) {
        if (step > 40) fail("the focus does not come to " + field + ", it is at " + focusName());
        press(key);
    }
}

bool walkToRow(DataGrid* grid, const QString& column, const QString& value) {
    grid->setFocus(Qt::ShortcutFocusReason);
    settle();
    press(Qt::Key_Home, Qt::ControlModifier);
    const auto here = [&] { return grid->currentText(column).compare(value, Qt::CaseInsensitive) == 0; };
    for (qint64 row = 1; !here() && row < grid->recordCount(); ++row) press(Qt::Key_Down);
    return grid->hasCurrent() && here();
}

void pushButton(QWidget* screen, const QString& name) {
    goTo(screen, name);
    if (focusName() != name) fail(name + " does not take the focus");
    press(Qt::Key_Space);
}

static QList<QWidget*> windowsOnShow() {
    QList<QWidget*> windows;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && !qobject_cast<QMenu*>(window)) {
            if (qobject_cast<QMainWindow*>(window))
                windows.prepend(window);
            else
                windows.append(window);
        }
    return windows;
}

QPixmap picture() {
    settle();
    QList<QWidget*> windows = windowsOnShow();
    if (windows.isEmpty()) fail("nothing is on show");
    // The largest lies below the others, the one in front above.
    std::iter_swap(windows.begin(), std::ranges::max_element(windows, {}, [](const QWidget* window) {
                       return window->width() * window->height();
                   }));
    std::ranges::stable_partition(windows.begin() + 1, windows.end(),
                                  [](const QWidget* window) { return !window->isActiveWindow(); });
    QPixmap whole = windows.first()->grab();
    QPainter painter(&whole);
    for (QWidget* over : windows.sliced(1))
        painter.drawPixmap(over->pos() - windows.first()->pos(), over->grab());
    return whole;
}

}  // namespace person
