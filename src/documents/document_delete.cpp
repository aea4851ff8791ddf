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

Outcome deleteDocument(Connection& store, const DocumentBook& book, const QString& key) {
    Transaction unit(store);
    if (RecordFound(store, book.paymentTable, book.paymentColumn, key))
        return Fault{exclamation("Error!", book.paidMessage), {}};
    RemoveStockValuation(store, book.bookId, key);
    RemoveForPosting(store, book.bookId, key);
    deleteRows(store, book.detailsTable, book.detailsKey, key);
    deleteRows(store, book.masterTable, book.masterKey, key);
    unit.commit();
    return Done{};
}

void recomputeAfterDeletion(Connection& store, const DocumentBook& book, Progress& progress) {
    book.recomputeMoney(store, progress);
    RecomputeInventoryBalances(store, progress);
}
