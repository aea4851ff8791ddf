#pragma once
#include "documents/order_book.h"
#include "platform/outcome.h"
#include "platform/progress.h"
#include "platform/store/connection.h"

#include <QString>

// What the deletion of a document of one book minds, beside the order itself.
struct DeletionRules {
    const OrderBook& orders;
    // A row of the payments with the document's number forbids its deletion.
    const char* paymentTable;
    const char* paymentColumn;
    const char* paidMessage;
    void (*recomputeMoney)(Connection& store, Progress& progress);
};

// Deletes a document, its lines, its valuation rows and its place in the posting queue, as one unit. A paid
// document, whatever the amount, is a Fault. The items stay queued. Throws StoreError; nothing is deleted
// then.
Outcome deleteDocument(Connection& store, const DeletionRules& rules, const QString& key);

// The balances after a deletion: of the book's documents, then of the inventory.
void recomputeAfterDeletion(Connection& store, const DeletionRules& rules, Progress& progress);
