#include "shell/late_calls.h"

#include "platform/store/store_error.h"
#include "platform/ui/boxes.h"

#include <QMetaMethod>
#include <QObject>
#include <exception>

void passOverErrors(const std::function<void()>& action) {
    try {
        action();
    } catch (const StoreError& error) {
        if (error.number() == StoreError::busy) showBox(exclamation("Error...", error.text()));
    } catch (const std::exception&) {
    }
}

void callCommand(QObject* child, const char* routine) {
    if (!child) return;
    const int index = child->metaObject()->indexOfMethod((QByteArray(routine) + "()").constData());
    if (index < 0) return;
    passOverErrors([&] { child->metaObject()->method(index).invoke(child, Qt::DirectConnection); });
}
