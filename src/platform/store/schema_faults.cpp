#include "platform/store/schema_faults.h"

#include "platform/store/engine.h"
#include "platform/store/schema_steps.h"
#include "platform/store/server_dialect.h"

#include <QSet>
#include <QTemporaryDir>

namespace {
QSet<QString> definitionsOf(Connection& store) {
    const QStringList found = engineOf(store).definitions();
    return {found.begin(), found.end()};
}

// A new file tells it.
QSet<QString> ownDefinitionsInFile() {
    const QTemporaryDir folder;
    Connection store;
    store.create(folder.filePath("own"), {});
    applySchemaSteps(store);
    return definitionsOf(store);
}

QSet<QString> ownDefinitionsOnServer() {
    QSet<QString> definitions;
    for (const QString& statement : statementsFromNothing())
        for (const QString& definition : serverDefinitions(statement)) definitions += definition;
    return definitions;
}
}  // namespace

QStringList schemaFaults(Connection& store) {
    const QSet<QString> own = isOnServer(store) ? ownDefinitionsOnServer() : ownDefinitionsInFile();
    const QSet<QString> found = definitionsOf(store);
    QStringList faults;
    for (const QString& definition : own - found) faults += "missing " + definition;
    for (const QString& definition : found - own) faults += "unknown " + definition;
    faults.sort();
    if (const qint64 version = engineOf(store).version(); version != schemaVersion())
        faults.prepend(QString("the schema is of version %1, that of the program of version %2")
                           .arg(version)
                           .arg(schemaVersion()));
    return faults;
}
