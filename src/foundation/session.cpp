#include "foundation/session.h"

#include <QCoreApplication>

Session& session() {
    static Session values;
    return values;
}

// The connection ends before the application does: the driver needs it.
Connection& StoreConnection() {
    static Connection connection;
    [[maybe_unused]] static const bool registered = [] {
        qAddPostRoutine([] { connection.close(); });
        return true;
    }();
    return connection;
}

static QString& chosenFolder() {
    static QString path;
    return path;
}

QDir programFolder() {
    return chosenFolder().isEmpty() ? QDir(QCoreApplication::applicationDirPath()) : QDir(chosenFolder());
}

void setProgramFolder(const QString& path) { chosenFolder() = path; }
