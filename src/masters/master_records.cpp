#include "masters/master_records.h"

#include "foundation/shared_routines.h"
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
    if (error.number() == StoreError::refused) return errorFault(refusedText);
    return Fault{exclamation("Error...", error.text()), {}};
}

Sql likeCondition(const QString& column, const QString& value) {
    return {column + " LIKE ?", {anywhere(value)}};
}

Sql numberCondition(const QString& column, const QString& value) {
    const auto number = parseNumber(value);
    if (!number) throw StoreError(StoreError::typeMismatch, '"' + value + "\" is not a number.");
    return {column + " = ?", {bound(*number)}};
}

SearchCondition twoWords(const QString& column, const QString& first, const QString& second) {
    Sql condition;
    for (const QString& word : {first, second})
        if (!word.isEmpty())
            condition += Sql(condition.isEmpty() ? " WHERE " : " AND ") + likeCondition(column, word);
    if (condition.isEmpty()) return exclamation("Error!", "Please Enter Search Value to Search!");
    return condition;
}

Sql valueCondition(const SearchCategory& category, const QString& value) {
    if (value.isEmpty()) return {};
    const Sql where = " WHERE ";
    if (category.match == SearchCategory::Number) return where + numberCondition(category.column, value);
    if (category.match == SearchCategory::Like) return where + likeCondition(category.column, value);
    return where + Sql{QString(category.column) + " = ?", {value}};
}
}  // namespace

Fault errorFault(const QString& text, const QString& focus) { return {exclamation("Error!", text), focus}; }

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

const SearchCategory* findCategory(const QList<SearchCategory>& categories, const QString& caption) {
    for (const SearchCategory& category : categories)
        if (caption == category.caption) return &category;
    return nullptr;
}

SearchCondition searchCondition(const QList<SearchCategory>& categories, const QString& caption,
                                const QString& value, const QString& secondValue) {
    const SearchCategory* category = findCategory(categories, caption);
    if (!category || category->match == SearchCategory::Type)
        return information("Please select!", "Please enter proper search category!");
    if (category->match == SearchCategory::TwoWords)
        return twoWords(category->column, trim(value), trim(secondValue));
    return valueCondition(*category, trim(value));
}
