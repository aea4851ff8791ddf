#include "platform/ui/guarded_application.h"

#include "platform/ui/boxes.h"

#include <QTimer>

bool GuardedApplication::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& error) {
        tellLater(QString::fromUtf8(error.what()));
        return true;
    }
}

// The event may be a paint, or the widget half way out of a call: no place for a box.
void GuardedApplication::tellLater(const QString& text) {
    if (std::exchange(telling_, true)) return;
    QTimer::singleShot(0, this, [this, text] {
        showBox(exclamation("Error...", text));
        telling_ = false;
    });
}
