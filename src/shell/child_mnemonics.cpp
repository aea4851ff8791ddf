#include "shell/child_mnemonics.h"

#include "platform/ui/child_screen.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>

ChildMnemonics::ChildMnemonics(QWidget* frame) : QObject(frame), frame_(frame) {
    qApp->installEventFilter(this);
}

static ChildScreen* screenAround(QWidget* widget) {
    for (; widget; widget = widget->parentWidget())
        if (auto* screen = qobject_cast<ChildScreen*>(widget)) return screen;
    return nullptr;
}

static bool answersTo(const QString& text, const QKeyEvent* event) {
    return QKeySequence::mnemonic(text) == QKeySequence(Qt::ALT | event->key());
}

// A button itself, or what a label stands for.
static QWidget* controlOf(QWidget* widget, const QKeyEvent* event) {
    if (auto* button = qobject_cast<QAbstractButton*>(widget))
        return answersTo(button->text(), event) ? button : nullptr;
    if (auto* label = qobject_cast<QLabel*>(widget))
        return label->buddy() && answersTo(label->text(), event) ? label->buddy() : nullptr;
    return nullptr;
}

QWidget* ChildMnemonics::controlFor(QObject* target, const QKeyEvent* event) const {
    auto* widget = qobject_cast<QWidget*>(target);
    if (event->modifiers() != Qt::AltModifier || !widget || widget->window() != frame_) return nullptr;
    ChildScreen* screen = screenAround(widget);
    if (!screen) return nullptr;
    for (QWidget* candidate : screen->findChildren<QWidget*>())
        if (QWidget* control = controlOf(candidate, event);
            control && control->isVisible() && control->isEnabled())
            return control;
    return nullptr;
}

// An accepted override keeps the key from the menus; it then comes as a key.
bool ChildMnemonics::eventFilter(QObject* target, QEvent* event) {
    if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress) return false;
    QWidget* control = controlFor(target, static_cast<QKeyEvent*>(event));
    if (!control) return false;
    event->accept();
    if (event->type() == QEvent::ShortcutOverride) return true;
    control->setFocus(Qt::ShortcutFocusReason);
    if (auto* button = qobject_cast<QAbstractButton*>(control); button && button->hasFocus()) button->click();
    return true;
}
