#include "shell/child_area.h"

#include "platform/ui/desk_memory.h"
#include "platform/ui/icons.h"
#include "shell/window_arrangement.h"

#include <QApplication>
#include <QMdiSubWindow>
#include <QMenu>
#include <QResizeEvent>
#include <QStyle>

namespace {

ChildScreen* screenIn(const QMdiSubWindow* window) {
    return window ? qobject_cast<ChildScreen*>(window->widget()) : nullptr;
}

QMdiSubWindow* windowOf(ChildScreen* screen) { return qobject_cast<QMdiSubWindow*>(screen->parentWidget()); }

// No window is made smaller than its screen can be read; the area scrolls instead.
void place(QMdiSubWindow* window, const QRect& rect) {
    window->setGeometry(QRect(rect.topLeft(), rect.size().expandedTo(window->minimumSizeHint())));
}

// As it asks for, and wide enough for its title between the picture and the three buttons.
QSize sizeFor(const QMdiSubWindow* window) {
    const int bar = window->style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, window);
    const QFontMetrics letters(QApplication::font("QMdiSubWindowTitleBar"));
    const int title = letters.horizontalAdvance(window->windowTitle()) + 5 * bar;
    return window->sizeHint().expandedTo({title, 0});
}

// The keys of a child window's own menu would take Ctrl+W from the record commands.
void freeKeys(const QMdiSubWindow* window) {
    if (const QMenu* menu = window->systemMenu())
        for (QAction* action : menu->actions()) action->setShortcuts(QList<QKeySequence>());
}

// The area gives the focus to the first field, which refuses it while it is locked; the screen's own choice,
// or the next that takes it, shall have it.
void ensureFocusIn(ChildScreen* screen) {
    const QWidget* focused = screen->window()->focusWidget();
    if (focused && screen->isAncestorOf(focused)) return;
    screen->focusProxy() ? screen->setFocus() : focusNextField(screen);
}

}  // namespace

ChildArea::ChildArea(QWidget* frame) : QMdiArea(frame) {
    setObjectName("MDIClient");
    setAccessibleName("Open screens");
    setBackground(palette().brush(QPalette::Dark));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setActivationOrder(ActivationHistoryOrder);
    connect(this, &QMdiArea::subWindowActivated, this, &ChildArea::childrenChanged);
}

void ChildArea::host(ChildScreen* screen) {
    QMdiSubWindow* window = addSubWindow(screen);
    window->setWindowIcon(bundledIcon("bird"));
    freeKeys(window);
    // Told when it has gone, not while it goes.
    connect(screen, &ChildScreen::unloaded, this, &ChildArea::childrenChanged, Qt::QueuedConnection);
    place(window, placeFor(screen, sizeFor(window)));
    connect(screen, &ChildScreen::unloaded, this,
            [this, given = window->geometry()](ChildScreen* left) { keepPlace(left, given); });
    window->show();
    setActiveSubWindow(window);
    ensureFocusIn(screen);
    emit childrenChanged();
}

// A window that a person has moved or sized comes back to where it was left.
void ChildArea::keepPlace(ChildScreen* screen, const QRect& given) {
    const QMdiSubWindow* window = windowOf(screen);
    const bool isPlain = window && !window->isMaximized() && !window->isMinimized();
    if (isPlain && window->geometry() != given && window->geometry() != viewport()->rect())
        desk_memory::keep("Windows/" + screen->objectName(), window->geometry());
}

// As much of it as there is room for.
static QRect within(const QRect& room, QRect place) {
    place.setSize(place.size().boundedTo(room.size()));
    place.moveLeft(std::clamp(place.left(), room.left(), room.right() + 1 - place.width()));
    place.moveTop(std::clamp(place.top(), room.top(), room.bottom() + 1 - place.height()));
    return place;
}

QRect ChildArea::placeFor(const ChildScreen* screen, const QSize& wanted) const {
    const QRect room = viewport()->rect();
    const QRect kept = desk_memory::kept("Windows/" + screen->objectName()).toRect();
    if (!kept.isEmpty()) return within(room, kept);
    if (screen->placement() == ChildScreen::FillsFrame) return room;
    QRect place(QPoint(0, 0), wanted.boundedTo(room.size()));
    place.moveCenter(room.center());
    return place;
}

void ChildArea::bringForward(ChildScreen* screen) {
    QMdiSubWindow* window = windowOf(screen);
    if (!window) return;
    if (window->isMinimized()) window->showNormal();
    setActiveSubWindow(window);
    ensureFocusIn(screen);
}

ChildScreen* ChildArea::activeChild() const { return screenIn(currentSubWindow()); }

QList<ChildScreen*> ChildArea::children() const {
    QList<ChildScreen*> screens;
    for (const QMdiSubWindow* window : subWindowList(CreationOrder))
        if (ChildScreen* screen = screenIn(window)) screens << screen;
    return screens;
}

QList<QMdiSubWindow*> ChildArea::shown(bool minimized) const {
    QList<QMdiSubWindow*> windows;
    for (QMdiSubWindow* window : subWindowList(CreationOrder))
        if (window->isVisible() && window->isMinimized() == minimized) windows << window;
    return windows;
}

void ChildArea::tile(Qt::Orientation orientation) {
    const QList<QMdiSubWindow*> windows = shown(false);
    const QList<QRect> places = tiled(viewport()->rect(), static_cast<int>(windows.size()), orientation);
    for (qsizetype i = 0; i < windows.size(); ++i) {
        windows[i]->showNormal();
        place(windows[i], places[i]);
    }
}

void ChildArea::cascade() { cascadeSubWindows(); }

void ChildArea::arrangeIcons() {
    const QList<QMdiSubWindow*> icons = shown(true);
    if (icons.isEmpty()) return;
    const QList<QRect> places =
        alongBottom(viewport()->rect(), static_cast<int>(icons.size()), icons.first()->size());
    for (qsizetype i = 0; i < icons.size(); ++i) icons[i]->move(places[i].topLeft());
}

// A screen that fills the frame goes on filling it.
void ChildArea::resizeEvent(QResizeEvent* event) {
    const QSize before = event->oldSize();
    QMdiArea::resizeEvent(event);
    for (QMdiSubWindow* window : shown(false))
        if (window->geometry() == QRect(QPoint(0, 0), before)) place(window, viewport()->rect());
}
