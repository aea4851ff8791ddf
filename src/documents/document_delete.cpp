#include "documents/document_delete.h"

#include "books/balances.h"
#include "books/posting_queue.h"
#include "books/stock_valuation.h"
#include "foundation/shared_routines.h"
#include "platform/store/transaction.h"

namespace {
void deleteRows(Connection& store, const char* table, const char* column, const QString& key) {
    store.run({QString("DELETE FROM %1 WHERE %2 = ?").arg(QString(table), QString(column)), {key}});
}
}  // namespace

Outcome deleteDocument(Connection& store, const DeletionRules& rules, const QString& key) {
    const OrderBook& book = rules.orders;
    Transaction unit(store);
    if (RecordFound(store, rules.paymentTable, rules.paymentColumn, key))
        return Fault{exclamation("Error!", rules.paidMessage), {}};
    RemoveStockValuation(store, book.bookId, key);
    RemoveForPosting(store, book.bookId, key);
    deleteRows(store, book.detailTable, "Reference", key);
    deleteRows(store, book.master.table, book.master.key, key);
    unit.commit();
    return Done{};
}

void recomputeAfterDeletion(Connection& store, const DeletionRules& rules, Progress& progress) {
    rules.recomputeMoney(store, progress);
    RecomputeInventoryBalances(store, progress);
}
