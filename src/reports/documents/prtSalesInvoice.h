#pragma once
#include "reports/frame/report_start.h"

class Connection;

// The sales invoice: what a customer has paid, by delivery receipt.
const ReportLayout& prtSalesInvoice();

// Its run for one payment; none when nothing is to be printed. The store must outlive the run.
std::optional<ReportJobParts> salesInvoiceReport(Connection& store, const QString& payNo);

// The record of the payment is tagged when its paper has been printed.
const DocumentTagging& salesInvoiceTagging();
