#pragma once
#include "reports/frame/report_start.h"

class Connection;

// The purchase order: what is ordered from a supplier at which price, with the signatures of the firm.
const ReportLayout& prtPurchase();

// Its run for one number; none when nothing is to be printed. The store must outlive the run.
std::optional<ReportJobParts> purchaseReport(Connection& store, const QString& purchaseNo);

// The record of the purchase is tagged when its paper has been printed.
const DocumentTagging& purchaseTagging();
