#include "platform/store/schema_steps.h"

#include "platform/store/engine.h"
#include "platform/store/transaction.h"

namespace {
std::vector<SchemaStep>& steps() {
    static std::vector<SchemaStep> list;
    return list;
}

const SchemaStep& step(qint64 number) { return steps()[static_cast<size_t>(number) - 1]; }

// The step that a new store on a server begins with, and the statements that make all of it.
qint64 firstOnServer() {
    for (qint64 number = schemaVersion(); number > 0; --number)
        if (!step(number).fromNothing.isEmpty()) return number;
    return 1;
}

const QStringList& statementsOf(qint64 number, bool fromNothing) {
    const SchemaStep& taken = step(number);
    return fromNothing && !taken.fromNothing.isEmpty() ? taken.fromNothing : taken.statements;
}

// Another workstation may have taken the step meanwhile: the version is read under the write lock.
void applyStep(Connection& store, Engine& engine, qint64 number) {
    Transaction unit(store);
    const qint64 version = engine.version();
    if (version >= number) return;
    const bool fromNothing = isOnServer(store) && version == 0;
    if (version == 0) engine.prepare();
    for (const QString& statement : statementsOf(number, fromNothing)) store.run(statement);
    engine.setVersion(number);
    unit.commit();
}
}  // namespace

void setSchemaSteps(std::vector<SchemaStep> list) { steps() = std::move(list); }

const std::vector<SchemaStep>& schemaSteps() { return steps(); }

int schemaVersion() { return static_cast<int>(steps().size()); }

QStringList statementsFromNothing() {
    QStringList statements;
    const qint64 first = firstOnServer();
    for (qint64 number = first; number <= schemaVersion(); ++number)
        statements += statementsOf(number, number == first);
    return statements;
}

void applySchemaSteps(Connection& store) {
    Engine& engine = engineOf(store);
    const qint64 version = engine.version();
    if (version > schemaVersion())
        throw StoreError(StoreError::general, "The store was written by a newer version of this program.");
    const qint64 first = isOnServer(store) && version == 0 ? firstOnServer() : version + 1;
    for (qint64 number = first; number <= schemaVersion(); ++number) applyStep(store, engine, number);
}
