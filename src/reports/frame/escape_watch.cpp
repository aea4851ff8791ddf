#include "reports/frame/escape_watch.h"

#include <QApplication>
#include <QKeyEvent>

static constexpr qint64 lookEveryMs = 100;

EscapeWatch::EscapeWatch() {
    sinceLook_.start();
    qApp->installEventFilter(this);
}

EscapeWatch::~EscapeWatch() {
    qApp->removeEventFilter(this);
    for (auto& [receiver, event] : waiting_)
        if (receiver) QCoreApplication::postEvent(receiver, event.release());
}

bool EscapeWatch::isPressed() {
    if (!isPressed_ && sinceLook_.hasExpired(lookEveryMs)) {
        QApplication::processEvents();
        sinceLook_.start();
    }
    return isPressed_;
}

bool EscapeWatch::eventFilter(QObject* receiver, QEvent* event) {
    switch (event->type()) {
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
            if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape)
                isPressed_ = true;
            else
                waiting_.emplace_back(receiver, event->clone());
            return true;
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::Wheel:
        case QEvent::Shortcut:
        case QEvent::ShortcutOverride:
        case QEvent::Close:
            return true;
        default:
            return false;
    }
}
