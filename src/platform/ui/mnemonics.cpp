#include "platform/ui/mnemonics.h"

#include "platform/ui/child_screen.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>

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

static QAbstractButton* buttonFor(const ChildScreen* screen, const QKeyEvent* event) {
    const QKeySequence pressed(event->keyCombination());
    for (auto* button : screen->findChildren<QAbstractButton*>())
        if (button->isVisible() && button->isEnabled() && button->window() == screen->window() &&
            QKeySequence::mnemonic(button->text()) == pressed)
            return button;
    return nullptr;
}

static void pressButton(QAbstractButton* button) {
    QWidget* left = QApplication::focusWidget();
    if (button->focusPolicy() != Qt::NoFocus) button->setFocus(Qt::ShortcutFocusReason);
    const bool kept = left != button && QApplication::focusWidget() == left;
    if (!kept || button->focusPolicy() == Qt::NoFocus) button->click();
}

bool Mnemonics::eventFilter(QObject* target, QEvent* event) {
    if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->modifiers() != Qt::AltModifier) return false;
    ChildScreen* screen = screenAround(target);
    QAbstractButton* button = screen ? buttonFor(screen, key) : nullptr;
    if (!button) return false;
    event->accept();
    if (event->type() == QEvent::KeyPress) pressButton(button);
    return true;
}
