#include "foundation/stored_state.h"

#include "platform/masks.h"
#include "platform/parsing.h"
#include "platform/store/place.h"

#include <algorithm>

namespace {
QString momentOf(const QString& stored) {
    const QDateTime moment = QDateTime::fromString(stored, Qt::ISODate);
    return moment.time() == QTime(0, 0) ? formatDate(moment.date()) : formatDateTime(moment);
}

// The change need not be the last save itself, so no more is claimed.
QString lastSave(const QString& updatedBy, const QString& dateUpdate) {
    const QString who = trim(updatedBy).isEmpty() ? QString("another user") : trim(updatedBy);
    return QString(" It was last saved by %1 on %2.").arg(who, momentOf(dateUpdate));
}

Fault changedMeanwhile(const QString& lastSave) {
    return {exclamation("Record Changed!",
                        "This record was changed while it was open here." + lastSave +
                            "\nNothing was saved now. Press F5 to see it as it is stored, and enter your "
                            "change again."),
            {}};
}
}  // namespace

StoredState::StoredState(Connection& store, const QList<KeyedTable>& tables, const QVariant& key)
    : tables_(tables), key_(key) {
    for (const KeyedTable& from : tables) rows_ += read(store, from, key);
}

StoredState::Rows StoredState::read(Connection& store, const KeyedTable& from, const QVariant& key) {
    // Lines that are written anew have other numbers, and the numbers say nothing.
    QStringList columns = store.columnTypes(from.table).keys();
    columns.removeOne(keyOf(store, from.table).toLower());
    Rows rows;
    for (Recordset set =
             store.execute({QString("SELECT * FROM %1 WHERE %2 = ?").arg(from.table, from.key), {key}});
         !set.eof(); set.moveNext()) {
        Row row;
        for (const QString& column : columns) row[column] = set.text(column);
        rows.insert(row);
    }
    return rows;
}

StoredState::Rows StoredState::without(const Rows& rows, const QSet<QString>& columns) {
    Rows left;
    for (Row row : rows) {
        for (const QString& column : columns) row.erase(column.toLower());
        left.insert(row);
    }
    return left;
}

std::optional<Fault> StoredState::overtaken(Connection& store, const QSet<QString>& keptByProgram) const {
    const StoredState now(store, tables_, key_);
    const auto alike = [&](const Rows& stored, const Rows& loaded) {
        return without(stored, keptByProgram) == without(loaded, keptByProgram);
    };
    if (std::ranges::equal(now.rows_, rows_, alike) || now.rows_.first().empty()) return std::nullopt;
    const Row& head = *now.rows_.first().begin();
    const auto who = head.find("updatedby");
    return changedMeanwhile(who == head.end() ? QString() : lastSave(who->second, head.at("dateupdate")));
}
