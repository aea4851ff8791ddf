#include "documents/document_delete.h"

#include "books/posting_queue.h"
#include "books/stock_valuation.h"
#include "foundation/shared_routines.h"
#include "platform/store/transaction.h"

namespace {
void leaveQueue(Connection& store, const char* bookId, const QString& number) {
    RemoveStockValuation(store, bookId, number);
    RemoveForPosting(store, bookId, number);
}

void deleteRows(Connection& store, const DeletionRules::Rows& rows, const QVariant& key) {
    store.run({QString("DELETE FROM %1 WHERE %2 = ?").arg(QString(rows.table), QString(rows.column)), {key}});
}
}  // namespace

Outcome deleteDocument(Connection& store, const DeletionRules& rules, const QVariant& key,
                       Progress& progress) {
    Transaction unit(store);
    if (rules.guard && RecordFound(store, rules.guard->table, rules.guard->column, key))
        return errorFault(rules.guard->message);
    if (rules.queuedAs) leaveQueue(store, rules.queuedAs, key.toString());
    for (const DeletionRules::Rows& gone : rules.rows) deleteRows(store, gone, key);
    for (const auto recompute : rules.recomputes) recompute(store, progress);
    unit.commit();
    return Done{};
}
