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

static QList<QAbstractButton*> buttonsFor(const ChildScreen* screen, const QKeyEvent* event) {
    const QKeySequence pressed(event->keyCombination());
    QList<QAbstractButton*> buttons;
    for (auto* button : screen->findChildren<QAbstractButton*>())
        if (button->isVisible() && button->isEnabled() && button->window() == screen->window() &&
            QKeySequence::mnemonic(button->text()) == pressed)
            buttons += button;
    return buttons;
}

static void pressButton(QAbstractButton* button) {
    QWidget* left = QApplication::focusWidget();
    if (button->focusPolicy() != Qt::NoFocus) button->setFocus(Qt::ShortcutFocusReason);
    const bool kept = left != button && QApplication::focusWidget() == left;
    if (!kept || button->focusPolicy() == Qt::NoFocus) button->click();
}

// Buttons that share a mnemonic take the focus in turn; a person presses the one that is meant.
static void goToNext(const QList<QAbstractButton*>& twins) {
    const auto focused = std::ranges::find(twins, QApplication::focusWidget());
    const bool last = focused == twins.end() || focused + 1 == twins.end();
    (last ? twins.first() : *(focused + 1))->setFocus(Qt::ShortcutFocusReason);
}

bool Mnemonics::eventFilter(QObject* target, QEvent* event) {
    if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->modifiers() != Qt::AltModifier) return false;
    ChildScreen* screen = screenAround(target);
    const auto buttons = screen ? buttonsFor(screen, key) : QList<QAbstractButton*>();
    if (buttons.isEmpty()) return false;
    event->accept();
    if (event->type() != QEvent::KeyPress) return true;
    if (buttons.size() == 1)
        pressButton(buttons.first());
    else
        goToNext(buttons);
    return true;
}
