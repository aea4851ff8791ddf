#pragma once
#include "platform/progress.h"

#include <QList>
#include <QString>

class Connection;

// The consistency checks over the books: they look for what the entry screens never let through, such as
// documents without lines and payments without a sale. Nothing is corrected.
namespace modDiscrepancy {

struct DiscrepancyCheck {
    const char* waiting;  // in the progress box
    const char* title;
    const char* heading;
    const char* table;
    const char* suspects;      // the rows that are looked at; null: all
    const char* reference;     // of a row, that another table has to know
    const char* masterColumn;  // that has to hold the reference
    const char* masterTable;
    const char* label;  // of a hit: "DR No. = "
    const char* number;
    const char* detailLabel = nullptr;  // of its second number; null: it has none
    const char* detail = nullptr;
};

extern const DiscrepancyCheck CheckSalesOrders, CheckSalesDetails, CheckPurchaseOrders, CheckPurchaseDetails,
    CheckPaymentReceipts, CheckReceiptDetails, CheckDisbursements;

// All of them, in the order of their report.
QList<const DiscrepancyCheck*> discrepancyChecks();

// The title and the heading, each with its line end.
QString headOf(const DiscrepancyCheck& check);

// The whole text of a check: its head, and a line for each row at fault or the words that there is none.
// Throws StoreError.
QString findingsOf(Connection& store, const DiscrepancyCheck& check, Progress& progress);

}  // namespace modDiscrepancy
