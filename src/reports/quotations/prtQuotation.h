#pragma once
#include "reports/frame/period_report.h"

// A price list of items, made out to one customer. Nothing of it is stored.
const ReportLayout& prtQuotation();

// The orders that it is offered in: "Item Code".
QStringList quotationOrders();

// Why nothing can be quoted: the contact is none.
std::optional<Fault> quotationFault(Connection& store, const PrintRequest& request);
// The run: the items with this text in their description, in the order of the selection; none when there is
// no such item. A request without fault.
std::optional<ReportJobParts> quotationReport(Connection& store, const PrintRequest& request);
