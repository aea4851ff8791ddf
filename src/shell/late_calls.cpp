#include "shell/late_calls.h"

#include "platform/store/store_error.h"
#include "platform/ui/boxes.h"

#include <QLoggingCategory>
#include <QMetaMethod>
#include <QObject>
#include <exception>

static Q_LOGGING_CATEGORY(shellLog, "zevrin.shell");

static void logPassedOver(const QString& what, const std::exception& error) {
    qCWarning(shellLog).noquote() << what << "failed and was passed over:" << error.what();
}

void passOverErrors(const QString& what, const std::function<void()>& action) {
    try {
        action();
    } catch (const StoreError& error) {
        logPassedOver(what, error);
        if (error.number() == StoreError::busy) showBox(exclamation("Error...", error.text()));
    } catch (const std::exception& error) {
        logPassedOver(what, error);
    }
}

void callCommand(QObject* child, const char* routine) {
    if (!child) return;
    const int index = child->metaObject()->indexOfMethod((QByteArray(routine) + "()").constData());
    if (index < 0) return;
    passOverErrors(child->objectName() + ' ' + routine,
                   [&] { child->metaObject()->method(index).invoke(child, Qt::DirectConnection); });
}
