#pragma once
#include "platform/store/connection.h"
#include "reports/frame/report_source.h"

#include <memory>

// Where the documents of one side of the books stand, and what was paid on them.
struct LogBookTables {
    const char* master;
    const char* number;
    const char* date;
    const char* amount;
    // Up to its condition: the number of the document, the amount, what was granted with it, two texts, and
    // what orders the payments of one document: a day, a key and a number.
    const char* payments;
    const char* paidNumber;     // the column of the document's number there
    const char* paymentFilter;  // empty: all
    const char* payment;        // the columns of the rows: of the amount and of the two texts
    const char* texts[2];
};

// The rows of a log book: the documents of contacts by name of contact, date and number, each once for each
// of its payments, one without payments once, with empty fields of the payment. Read by three statements and
// joined in memory. contacts, documents: conditions " WHERE ..." of the two masters; empty: all. None: no
// document.
std::unique_ptr<ReportSource> logBookRows(Connection& store, const LogBookTables& tables, const Sql& contacts,
                                          const Sql& documents);
