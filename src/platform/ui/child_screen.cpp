#include "platform/ui/child_screen.h"

#include "platform/ui/boxes.h"
#include "platform/ui/enter_key.h"
#include "platform/ui/form.h"
#include "platform/ui/front_watch.h"
#include "platform/ui/mnemonics.h"
#include "platform/ui/popup_frame.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMdiSubWindow>
#include <QScreen>
#include <QShowEvent>
#include <QToolButton>

ChildScreen::ChildScreen(const QString& name, const QString& caption, Placement placement, Kind kind)
    : placement_(placement), kind_(kind) {
    FrontWatch::instance();
    Mnemonics::install();
    setObjectName(name);
    setWindowTitle(caption);
    setAttribute(Qt::WA_DeleteOnClose);
}

ChildScreen* ChildScreen::front() { return FrontWatch::instance().front(); }

ChildScreen* ChildScreen::opener() const { return opener_; }

bool ChildScreen::receive(const ScreenArguments& arguments) {
    if (!arguments.caption.isEmpty()) setWindowTitle(arguments.caption);
    return true;
}

bool ChildScreen::unload() {
    if (state_ == Unloaded) return true;
    const QPointer<ChildScreen> screen = this;
    auto* subWindow = qobject_cast<QMdiSubWindow*>(parentWidget());
    if (subWindow && subWindow->widget() == this)
        subWindow->close();
    else
        close();
    return !screen || screen->state_ == Unloaded;
}

// One question for each attempt: a second attempt while it is open changes nothing.
bool ChildScreen::agreeToUnload() {
    if (state_ != Open) return state_ != Asking;
    state_ = Asking;
    bool leaves = false;
    guarded([&] { leaves = queryUnload(); });
    state_ = leaves ? Agreed : Open;
    return leaves;
}

void ChildScreen::stayOpen() {
    if (state_ == Agreed) state_ = Open;
}

void ChildScreen::closeEvent(QCloseEvent* event) {
    if (state_ == Unloaded) return event->accept();
    event->setAccepted(agreeToUnload());
    if (!event->isAccepted()) return;
    state_ = Unloaded;
    leave();
}

static bool takesTab(const QWidget* widget, const QWidget* screen) {
    return (widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy() && widget->isEnabled() &&
           widget->isVisibleTo(screen) && screen->isAncestorOf(widget);
}

// A button beside a field opens a picker for the field, which is where a person wants to be when it has gone.
static void returnToField(const QWidget* window) {
    auto* button = qobject_cast<QToolButton*>(window->focusWidget());
    if (!button) return;
    for (QWidget* field = button->previousInFocusChain(); field != button;
         field = field->previousInFocusChain())
        if (takesTab(field, window)) return field->setFocus(Qt::OtherFocusReason);
}

void ChildScreen::leave() {
    guarded([this] { unloading(); });
    FrontWatch::instance().forget(this);
    emit unloaded(this);
    if (kind_ == Popup && isActiveWindow() && opener_) {
        opener_->window()->activateWindow();
        returnToField(opener_->window());
    }
    // Closed by itself, the screen takes the child window around it along.
    if (auto* subWindow = qobject_cast<QMdiSubWindow*>(parentWidget()))
        QMetaObject::invokeMethod(subWindow, &QWidget::close, Qt::QueuedConnection);
}

void ChildScreen::showEvent(QShowEvent* event) {
    form::setAccessibleFromTexts(this);
    QWidget::showEvent(event);
}

void ChildScreen::keyPressEvent(QKeyEvent* event) {
    const bool enter = isEnterKey(event->key());
    if (event->key() == Qt::Key_Escape)
        unload();
    else if (auto* picture = qobject_cast<QToolButton*>(QApplication::focusWidget()); enter && picture)
        picture->click();
    else if (enter)
        focusNextField(this);
    else
        QWidget::keyPressEvent(event);
}

void ChildScreen::openFrom(ChildScreen* opener, QWidget* frame) {
    opener_ = opener;
    setParent(frame, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    PopupFrame::dress(this);
    placePopup(frame);
    show();
    activateWindow();
}

// Below the field that a person is at, as large as wanted, and within the room; where little is left below,
// as far up as it takes.
static QRect belowField(const QRect& room, QSize wanted) {
    const QWidget* field = QApplication::focusWidget();
    QPoint corner = room.topLeft();
    if (field) corner = field->mapToGlobal(QPoint(0, field->height()));
    QRect place(corner, wanted.boundedTo(room.size()));
    if (place.right() > room.right()) place.moveRight(room.right());
    const int least = place.height() / 2;
    if (room.bottom() - place.top() < least) place.moveTop(room.bottom() - least);
    return place & room;
}

void ChildScreen::placePopup(const QWidget* frame) {
    const QRect area = screen()->availableGeometry();
    constexpr int margin = 4;
    const QRect room = (frame ? frame->geometry() & area : area).adjusted(margin, margin, -margin, -margin);
    if (placement_ == FillsFrame) return setGeometry(belowField(room, sizeHint()));
    adjustSize();
    move(room.center() - rect().center());
}

void focusNextField(QWidget* screen) {
    QWidget* start = QApplication::focusWidget();
    if (!start || !screen->isAncestorOf(start)) start = screen;
    for (QWidget* next = start->nextInFocusChain(); next != start; next = next->nextInFocusChain())
        if (takesTab(next, screen)) return next->setFocus(Qt::TabFocusReason);
}
