#include "platform/ui/child_screen.h"

#include "platform/ui/boxes.h"
#include "platform/ui/enter_key.h"
#include "platform/ui/form.h"
#include "platform/ui/front_watch.h"
#include "platform/ui/mnemonics.h"

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

void ChildScreen::leave() {
    guarded([this] { unloading(); });
    FrontWatch::instance().forget(this);
    emit unloaded(this);
    if (kind_ == Popup && isActiveWindow() && opener_) opener_->window()->activateWindow();
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
    placePopup(frame);
    show();
    activateWindow();
}

// The margins of a picker within the frame, from 1/1440 inch.
static QSize roomWithin(const QWidget* frame) {
    return frame->size() - QSize(200 * frame->logicalDpiX() / 1440, 1600 * frame->logicalDpiY() / 1440);
}

void ChildScreen::placePopup(const QWidget* frame) {
    const QRect area = screen()->availableGeometry();
    if (placement_ == FillsFrame && frame) {
        setGeometry(QRect(frame->pos(), roomWithin(frame).expandedTo(minimumSizeHint())) & area);
        return;
    }
    adjustSize();
    move(area.center() - rect().center());
}

static bool takesTab(const QWidget* widget, const QWidget* screen) {
    return (widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy() && widget->isEnabled() &&
           widget->isVisibleTo(screen) && screen->isAncestorOf(widget);
}

void focusNextField(QWidget* screen) {
    QWidget* start = QApplication::focusWidget();
    if (!start || !screen->isAncestorOf(start)) start = screen;
    for (QWidget* next = start->nextInFocusChain(); next != start; next = next->nextInFocusChain())
        if (takesTab(next, screen)) return next->setFocus(Qt::TabFocusReason);
}
