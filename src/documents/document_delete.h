#pragma once
#include "masters/master_records.h"
#include "platform/progress.h"

// What the deletion of a document of one book takes along and minds.
struct DeletionRules {
    // A table, and its column that holds the document's number.
    struct Rows {
        const char* table;
        const char* column;
    };
    const char* queuedAs;              // its letter in the posting queue and the valuation; null: in neither
    std::optional<DeleteGuard> guard;  // a row there, whatever its amount, forbids the deletion
    QList<Rows> rows;                  // what goes, in this order
    QList<void (*)(Connection& store, Progress& progress)> recomputes;  // the balances that follow
};

// Deletes a document and what belongs to it, and brings the balances to what is left, as one unit: all of it
// or nothing. A guarded document is a Fault. Its items stay in the posting queue. Throws StoreError.
Outcome deleteDocument(Connection& store, const DeletionRules& rules, const QVariant& key,
                       Progress& progress = Progress::none());
