#include "masters/master_records.h"

#include "foundation/session.h"
#include "foundation/shared_routines.h"
#include "platform/clock.h"
#include "platform/parsing.h"
#include "platform/store/transaction.h"

namespace {
// Between the placeholders of a statement about one master.
QString about(const char* statement, const MasterTable& master) {
    return QString::fromLatin1(statement).replace("<key>", master.key).replace("<table>", master.table);
}

QString keyOf(const Recordset& row, const MasterTable& master) {
    return row.eof() ? QString() : row.trimmed(master.key);
}

std::optional<QString> neighbour(Connection& store, const MasterTable& master, const QString& key,
                                 const char* statement) {
    const QString current = trim(key);
    if (!RecordFound(store, master.table, master.key, current))
        throw StoreError(StoreError::noCurrentRow, "There is no current record.");
    const Recordset row = store.execute({about(statement, master), {current}});
    if (row.eof()) return std::nullopt;
    return keyOf(row, master);
}

Outcome deletionFailure(const StoreError& error, const char* refusedText) {
    if (error.number() == StoreError::noCurrentRow) throw error;
    if (error.number() == StoreError::refused && refusedText) return errorFault(refusedText);
    return Fault{exclamation("Error...", error.text()), {}};
}

SearchCondition twoWords(const SearchField& field, const QString& first, const QString& second) {
    Sql condition;
    for (const QString& word : {first, second})
        if (!word.isEmpty())
            condition += Sql(condition.isEmpty() ? " WHERE " : " AND ") + *comparison(field, word, false);
    if (condition.isEmpty()) return exclamation("Error!", "Please Enter Search Value to Search!");
    return condition;
}

Sql valueCondition(const SearchField& field, const QString& value) {
    if (value.isEmpty()) return {};
    const auto condition = comparison(field, value, false);
    if (!condition) throw StoreError(StoreError::typeMismatch, '"' + value + "\" is not a number.");
    return Sql(" WHERE ") + *condition;
}
}  // namespace

QString firstRecord(Connection& store, const MasterTable& master) {
    return keyOf(store.execute(about("SELECT <key> FROM <table> ORDER BY <key> ASC LIMIT 1", master)),
                 master);
}

QString lastRecord(Connection& store, const MasterTable& master) {
    return keyOf(store.execute(about("SELECT <key> FROM <table> ORDER BY <key> DESC LIMIT 1", master)),
                 master);
}

std::optional<QString> nextRecord(Connection& store, const MasterTable& master, const QString& key) {
    return neighbour(store, master, key,
                     "SELECT <key> FROM <table> WHERE <key> > ? ORDER BY <key> ASC LIMIT 1");
}

std::optional<QString> previousRecord(Connection& store, const MasterTable& master, const QString& key) {
    return neighbour(store, master, key,
                     "SELECT <key> FROM <table> WHERE <key> < ? ORDER BY <key> DESC LIMIT 1");
}

bool nameFound(Connection& store, const char* table, const char* column, const QString& name) {
    // LIKE folds all letters, but takes a % of the name for a wildcard: the texts themselves decide.
    Recordset rows = store.execute(
        {QString("SELECT %1 AS Name FROM %2 WHERE TRIM(%1) LIKE ?").arg(column, table), {trim(name)}});
    for (; !rows.eof(); rows.moveNext())
        if (rows.trimmed("Name").compare(trim(name), Qt::CaseInsensitive) == 0) return true;
    return false;
}

std::optional<Fault> writeRecord(Connection& store, const MasterTable& master, bool addMode,
                                 const QString& key, const ColumnValues& values, const MasterEdit& edit,
                                 const QSet<QString>& keptByProgram) {
    const Sql where{about("WHERE <key> = ?", master), {key}};
    Recordset row = store.openTable(master.table, addMode ? Sql{} : where);
    if (addMode)
        row.addNew();
    else if (row.eof())
        throw StoreError(StoreError::noCurrentRow, "The row has been deleted by another user.");
    else if (edit.changed.isEmpty())
        return std::nullopt;
    else if (auto fault = edit.loaded.overtaken(store, keptByProgram))
        return fault;
    for (const auto& [column, value] : values)
        if (addMode || edit.changed.contains(column)) row.set(column, value);
    if (store.columnTypes(master.table).contains("updatedby")) {
        row.set("UpdatedBy", trim(session().CurrentUserCode));
        row.set("DateUpdate", Clock::today());
    }
    row.update();
    return std::nullopt;
}

Outcome deleteRecord(Connection& store, const MasterTable& master, const QList<DeleteGuard>& guards,
                     const QString& key, const char* refusedText) {
    if (trim(key).isEmpty()) throw StoreError(StoreError::noCurrentRow, "There is no current record.");
    try {
        Transaction deletion(store);
        for (const DeleteGuard& guard : guards)
            if (RecordFound(store, guard.table, guard.column, key)) return errorFault(guard.message);
        store.run({about("DELETE FROM <table> WHERE <key> = ?", master), {key}});
        deletion.commit();
        return Done{};
    } catch (const StoreError& error) {
        return deletionFailure(error, refusedText);
    }
}

SearchCondition searchCondition(const QList<SearchField>& fields, const QString& caption,
                                const QString& value, const QString& secondValue) {
    const SearchField* field = findField(fields, caption);
    if (!field || field->kind == SearchField::Choice)
        return information("Please select!", "Please enter proper search category!");
    if (field->kind == SearchField::TwoWords) return twoWords(*field, trim(value), trim(secondValue));
    return valueCondition(*field, trim(value));
}
