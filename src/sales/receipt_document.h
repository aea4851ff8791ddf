#pragma once
#include "documents/document_head.h"
#include "platform/progress.h"
#include "sales/receipt_line.h"

// A payment receipt without its window: one payment of a customer over one or more sales orders, and how it
// is checked and saved.
//
//     ReceiptDocument receipt = newReceipt(store);
//     receipt.contactName = "Aling Nena Store";
//     receipt.lines = {lineOf(store, entry)};
//     const Outcome outcome = saveReceipt(store, receipt);
struct ReceiptDocument : DocumentHead {
    QList<ReceiptLine> lines = {};
};

// An empty receipt of today. Its number is taken, and lost if it is not saved.
ReceiptDocument newReceipt(Connection& store);

// A stored receipt, as its screen shows it. Throws StoreError: noCurrentRow when it is not there.
struct LoadedReceipt : StoredHead {
    ReceiptDocument document;
};
LoadedReceipt loadReceipt(Connection& store, const QString& code);

// The checks before a save, in their order; a fault leaves all as it is.
std::optional<Fault> ValidateReceipt(Connection& store, const ReceiptDocument& receipt);

// Checks the receipt and saves it, whole or not at all: the master row, the lines, and the balance of each
// order paid. With the write lock held each line is tested again against the store. Done or a Fault, never a
// Question.
Outcome saveReceipt(Connection& store, const ReceiptDocument& receipt, Progress& progress = Progress::none());
