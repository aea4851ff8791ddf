#pragma once
#include "platform/progress.h"
#include "sales/receipt_line.h"

// A payment receipt without its window: one payment of a customer over one or more sales orders, and how it
// is checked and saved.
//
//     ReceiptDocument receipt = newReceipt(store);
//     receipt.customerName = "Aling Nena Store";
//     receipt.lines = {lineOf(store, entry)};
//     const Outcome outcome = saveReceipt(store, receipt);
struct ReceiptDocument {
    bool addMode = true;
    QString code;  // the payment number
    QString date;  // as typed
    QString customerName;
    QString remarks;
    QList<ReceiptLine> lines;
};

// An empty receipt of today. Its number is taken, and lost if it is not saved.
ReceiptDocument newReceipt(Connection& store);
QString NextPaymentNo(Connection& store);

// A stored receipt with its lines, by the row. Throws StoreError: noCurrentRow when it is not there.
ReceiptDocument loadReceipt(Connection& store, const QString& code);

// The checks before a save, in their order; a fault leaves all as it is.
std::optional<Fault> ValidateReceipt(Connection& store, const ReceiptDocument& receipt);

// Checks the receipt and saves it, whole or not at all: the master row, the lines, and the balance of each
// order paid. With the write lock held each line is tested again against the store. Done or a Fault, never a
// Question.
Outcome saveReceipt(Connection& store, const ReceiptDocument& receipt, Progress& progress = Progress::none());
