#pragma once
#include "platform/outcome.h"
#include "platform/store/connection.h"

#include <QList>
#include <QSet>
#include <map>
#include <optional>
#include <set>

// A table, and its column that holds the key of a document or a record.
struct KeyedTable {
    const char* table;
    const char* key;
};

// The rows of a document or a record as a screen has loaded them, so that a save can tell whether someone
// else has changed them since, on another workstation or another screen.
//
//     document.loaded = StoredState(store, {salesBook, {"tblSalesDetails", "Reference"}}, number);
//     ...
//     Transaction unit(store);
//     if (auto fault = document.loaded.overtaken(store, {"Balance"})) return *fault;
class StoredState {
  public:
    // Of something new: nothing was loaded, and nobody can have changed it.
    StoredState() = default;
    // All rows with this key, by one statement for each table; the first one's row is the head, whose
    // UpdatedBy and DateUpdate, where it has them, a refusal names. To be read before what is shown: a change
    // that comes between is then refused rather than missed. Throws StoreError.
    StoredState(Connection& store, const QList<KeyedTable>& tables, const QVariant& key);

    // Within the unit of the save: the refusal when what is stored by now differs, in whatever order its rows
    // come. Columns that the program keeps by itself are no change of anybody's. A head that has gone is none
    // either: the save that misses it has words of its own.
    std::optional<Fault> overtaken(Connection& store, const QSet<QString>& keptByProgram) const;

  private:
    using Row = std::map<QString, QString>;  // by column, in lower case
    using Rows = std::multiset<Row>;
    static Rows read(Connection& store, const KeyedTable& from, const QVariant& key);
    static Rows without(const Rows& rows, const QSet<QString>& columns);

    QList<KeyedTable> tables_;
    QVariant key_;
    QList<Rows> rows_;  // by table
};
