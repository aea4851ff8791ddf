#pragma once
#include "foundation/stored_state.h"
#include "platform/outcome.h"
#include "platform/search_field.h"
#include "platform/store/connection.h"

#include <QList>
#include <optional>
#include <variant>

// What the item and the contact master do alike with their tables. Without a window; failures are StoreError.

using MasterTable = KeyedTable;

// The walk through the whole table in the order of its keys. First and last: empty for an empty table. Next
// and previous: none at the end; StoreError noCurrentRow when the key is not there.
QString firstRecord(Connection& store, const MasterTable& master);
QString lastRecord(Connection& store, const MasterTable& master);
std::optional<QString> nextRecord(Connection& store, const MasterTable& master, const QString& key);
std::optional<QString> previousRecord(Connection& store, const MasterTable& master, const QString& key);

// Whether a row has this name: all letters alike, Ñ and ñ too, blanks at the ends left out.
bool nameFound(Connection& store, const char* table, const char* column, const QString& name);

// What a person has done to a stored record.
struct MasterEdit {
    QSet<QString> changed = {};  // the columns that are written
    StoredState loaded = {};     // the record as it was when it was shown
};

// Writes a record: a new one whole, an old one in the columns that a person changed, and then who did it and
// when, where the table keeps that. So what the program keeps by itself stays as it is by then, and nothing
// changed is nothing written. An old one that someone else has changed meanwhile is refused. StoreError
// noCurrentRow when it has gone.
using ColumnValues = QList<std::pair<const char*, QVariant>>;
std::optional<Fault> writeRecord(Connection& store, const MasterTable& master, bool addMode,
                                 const QString& key, const ColumnValues& values, const MasterEdit& edit,
                                 const QSet<QString>& keptByProgram = {});

// A table that may refer to the record, and what is said when it does.
struct DeleteGuard {
    const char* table;
    const char* column;
    const char* message;
};

// Deletes the record unless a guard, in their order, finds it in use. An empty key is StoreError
// noCurrentRow; a refusal of the store's own (said with refusedText, if any) and any other failure is a
// Fault.
Outcome deleteRecord(Connection& store, const MasterTable& master, const QList<DeleteGuard>& guards,
                     const QString& key, const char* refusedText = nullptr);

// The condition for what was typed, or the box that refuses it. Empty values list all, but two words must
// have one. A number that does not convert is StoreError typeMismatch.
using SearchCondition = std::variant<Sql, Box>;
SearchCondition searchCondition(const QList<SearchField>& fields, const QString& caption,
                                const QString& value, const QString& secondValue = {});
