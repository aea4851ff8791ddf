#pragma once
#include "reports/frame/report_layout.h"

// The lists of the journals. Their titles, and heads without a text, come with the run.
const ReportLayout& prtSalesReport();
const ReportLayout& prtSalesDetails();
const ReportLayout& prtReceipt();
const ReportLayout& prtReceiptSummary();
const ReportLayout& prtTransactions();
const ReportLayout& prtTransactionDetails();
const ReportLayout& prtTransactionPayments();
