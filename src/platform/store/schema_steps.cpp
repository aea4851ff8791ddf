#include "platform/store/schema_steps.h"

#include "platform/store/connection.h"
#include "platform/store/transaction.h"

namespace {
std::vector<SchemaStep>& steps() {
    static std::vector<SchemaStep> list;
    return list;
}

qint64 storedVersion(Connection& store) {
    return store.execute("SELECT user_version FROM pragma_user_version").integer("user_version");
}

// Another workstation may have taken the step meanwhile: the version is read under the write lock.
void applyStep(Connection& store, int number) {
    Transaction unit(store);
    if (storedVersion(store) >= number) return;
    for (const QString& statement : steps()[static_cast<size_t>(number) - 1].statements) store.run(statement);
    store.run(QString("PRAGMA user_version = %1").arg(number));
    unit.commit();
}
}  // namespace

void setSchemaSteps(std::vector<SchemaStep> list) { steps() = std::move(list); }

int schemaVersion() { return static_cast<int>(steps().size()); }

void applySchemaSteps(Connection& store) {
    const qint64 version = storedVersion(store);
    if (version > schemaVersion())
        throw StoreError(StoreError::general, "The store was written by a newer version of this program.");
    for (int number = static_cast<int>(version) + 1; number <= schemaVersion(); ++number)
        applyStep(store, number);
}
