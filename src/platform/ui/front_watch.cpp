#include "platform/ui/front_watch.h"

#include "platform/ui/boxes.h"
#include "platform/ui/child_screen.h"

#include <QApplication>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QTimer>

FrontWatch& FrontWatch::instance() {
    // Never deleted: fields may still lose their focus while the application goes down.
    static FrontWatch* watch = new FrontWatch;
    return *watch;
}

FrontWatch::FrontWatch() {
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget* /*old*/, QWidget* now) { focusChanged(now); });
}

void FrontWatch::focusChanged(QWidget* now) {
    if (!outsideTheWork(now)) moveField(now);
    settleLater();
}

static ChildScreen* screenOf(QWidget* widget) {
    for (; widget; widget = widget->parentWidget()) {
        if (auto* screen = qobject_cast<ChildScreen*>(widget)) return screen;
        if (auto* child = qobject_cast<QMdiSubWindow*>(widget))
            return qobject_cast<ChildScreen*>(child->widget());
    }
    return nullptr;
}

// Another program, a box, a modal dialog, a menu or the list of a combo box has the focus.
bool FrontWatch::outsideTheWork(QWidget* now) const {
    if (holds_ > 0 || !now) return true;
    const bool passing = now->window()->windowType() == Qt::Popup || qobject_cast<QMenuBar*>(now);
    return passing || (now->window()->isModal() && !screenOf(now));
}

static bool stillThere(const QWidget* field) {
    return field && field->parentWidget() && field->parentWidget()->isVisible();
}

void FrontWatch::moveField(QWidget* now) {
    if (now == field_) return;
    const QPointer<QWidget> left = field_;
    // Nobody has it while the field that is left speaks: it may take the focus back.
    field_ = nullptr;
    if (auto* field = dynamic_cast<FocusField*>(left.data()); field && stillThere(left))
        guarded([field] { field->fieldLost(); });
    if (field_ || QApplication::focusWidget() != now) return;
    field_ = now;
    if (auto* field = dynamic_cast<FocusField*>(now)) guarded([field] { field->fieldGained(); });
}

void FrontWatch::release() {
    if (--holds_ > 0) return;
    focusChanged(QApplication::focusWidget());
}

// Where the focus ends up counts, not the places it passes on its way.
void FrontWatch::settleLater() {
    if (settling_) return;
    settling_ = true;
    QTimer::singleShot(0, this, [this] {
        if (settling_) settle();
    });
}

void FrontWatch::settle() {
    settling_ = false;
    QWidget* now = QApplication::focusWidget();
    // A window without a field of its own still comes to the front.
    if (!now) now = QApplication::activeWindow();
    if (outsideTheWork(now)) return;
    ChildScreen* screen = screenOf(now);
    // The focus of a closing screen has yet to go somewhere.
    if (screen && screen->hasUnloaded()) return;
    if (screen)
        bringToFront(screen);
    else if (!front_ || front_->window() != now->window())
        bringToFront(nullptr);
}

static QList<QPointer<ChildScreen>> withItsOpeners(ChildScreen* screen) {
    QList<QPointer<ChildScreen>> chain;
    for (; screen && !chain.contains(screen); screen = screen->opener()) chain += screen;
    return chain;
}

void FrontWatch::bringToFront(ChildScreen* screen) {
    const auto before = active_;
    const auto now = withItsOpeners(screen);
    if (screen) front_ = screen;
    active_ = now;
    for (const auto& left : before)
        if (left && !now.contains(left)) guarded([&] { left->deactivated(); });
    for (const auto& come : now)
        if (come && !before.contains(come) && active_.contains(come)) guarded([&] { come->activated(); });
}

void FrontWatch::forget(ChildScreen* screen) {
    active_.removeAll(screen);
    if (front_ == screen) front_ = nullptr;
    settleLater();
}

// The window that the focus was given back to last; its activation may still be on its way.
static QPointer<QWidget> givenBackTo;

static bool isInFront(const QWidget* window) { return window && window->isVisible(); }

static QWidget* windowInFront() {
    QWidget* active = QApplication::activeWindow();
    return isInFront(active) ? active : givenBackTo.data();
}

FrontHold::FrontHold() : window_(windowInFront()) { FrontWatch::instance().hold(); }

FrontHold::~FrontHold() {
    if (isInFront(window_) && !isInFront(QApplication::activeWindow())) {
        window_->activateWindow();
        givenBackTo = window_;
    }
    FrontWatch::instance().release();
}
