#include "platform/ui/mnemonics.h"

#include "platform/ui/child_screen.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>

void Mnemonics::install() {
    // Lives as long as the application, which the screens do not outlive.
    static Mnemonics* filter = new Mnemonics;
    Q_UNUSED(filter);
}

Mnemonics::Mnemonics() : QObject(qApp) { qApp->installEventFilter(this); }

// The screen that the control stands on; a box over a screen is not part of it.
static ChildScreen* screenAround(QObject* target) {
    for (auto* widget = qobject_cast<QWidget*>(target); widget; widget = widget->parentWidget()) {
        if (auto* screen = qobject_cast<ChildScreen*>(widget)) return screen;
        if (widget->isWindow()) return nullptr;
    }
    return nullptr;
}

// A button itself, or what a label stands for; null when its text has another mnemonic.
static QWidget* controlOf(QWidget* widget, const QKeySequence& pressed) {
    if (auto* button = qobject_cast<QAbstractButton*>(widget))
        return QKeySequence::mnemonic(button->text()) == pressed ? button : nullptr;
    if (auto* label = qobject_cast<QLabel*>(widget))
        return QKeySequence::mnemonic(label->text()) == pressed ? label->buddy() : nullptr;
    return nullptr;
}

static QList<QWidget*> controlsFor(const ChildScreen* screen, const QKeyEvent* event) {
    const QKeySequence pressed(event->keyCombination());
    QList<QWidget*> controls;
    for (QWidget* widget : screen->findChildren<QWidget*>())
        if (QWidget* control = controlOf(widget, pressed);
            control && control->isVisible() && control->isEnabled() && control->window() == screen->window())
            controls += control;
    return controls;
}

static void pressButton(QAbstractButton* button) {
    QWidget* left = QApplication::focusWidget();
    if (button->focusPolicy() != Qt::NoFocus) button->setFocus(Qt::ShortcutFocusReason);
    const bool kept = left != button && QApplication::focusWidget() == left;
    if (!kept || button->focusPolicy() == Qt::NoFocus) button->click();
}

// Controls that share a mnemonic take the focus in turn; a person presses the one that is meant.
static void goToNext(const QList<QWidget*>& twins) {
    const auto focused = std::ranges::find(twins, QApplication::focusWidget());
    const bool last = focused == twins.end() || focused + 1 == twins.end();
    (last ? twins.first() : *(focused + 1))->setFocus(Qt::ShortcutFocusReason);
}

static void answer(const QList<QWidget*>& controls) {
    auto* button = qobject_cast<QAbstractButton*>(controls.first());
    if (controls.size() > 1 || !button)
        goToNext(controls);
    else
        pressButton(button);
}

// An accepted override keeps the key from the menus; it then comes as a key.
bool Mnemonics::eventFilter(QObject* target, QEvent* event) {
    if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->modifiers() != Qt::AltModifier) return false;
    ChildScreen* screen = screenAround(target);
    const auto controls = screen ? controlsFor(screen, key) : QList<QWidget*>();
    if (controls.isEmpty()) return false;
    event->accept();
    if (event->type() == QEvent::KeyPress) answer(controls);
    return true;
}
