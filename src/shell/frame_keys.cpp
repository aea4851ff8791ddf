#include "shell/frame_keys.h"

#include "shell/frame_menus.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QWidget>

FrameKeys::FrameKeys(QWidget* frame, const FrameMenus& menus) : QObject(frame), frame_(frame) {
    for (const char* name : {"mnuRecord", "mnuView"})
        for (QAction* item : menus.menu(name)->actions())
            if (!item->shortcut().isEmpty()) items_ << item;
    qApp->installEventFilter(this);
}

bool FrameKeys::isFrameKey(const QKeyEvent* event) const {
    const QKeySequence pressed(event->keyCombination());
    return std::any_of(items_.begin(), items_.end(),
                       [&](const QAction* item) { return item->isEnabled() && item->shortcut() == pressed; });
}

// An unaccepted override leaves the key to the menus.
bool FrameKeys::eventFilter(QObject* target, QEvent* event) {
    if (event->type() != QEvent::ShortcutOverride) return false;
    const auto* widget = qobject_cast<QWidget*>(target);
    if (!widget || widget->window() != frame_) return false;
    if (!isFrameKey(static_cast<QKeyEvent*>(event))) return false;
    event->ignore();
    return true;
}
