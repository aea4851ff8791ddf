#pragma once
#include "reports/frame/report_layout.h"

// The layouts of the log books: the documents of contacts with their payments.

// The statement of account of customers: pages of its own for each, with what remains open and the notes.
const ReportLayout& prtReceivableLogBook();
// What the firm bought from its suppliers and paid.
const ReportLayout& prtPayableLogBook();
