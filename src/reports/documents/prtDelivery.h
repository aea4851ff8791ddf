#pragma once
#include "reports/frame/report_start.h"

class Connection;

// The delivery receipt of a sale: who gets what at which price, with the signatures of both sides.
const ReportLayout& prtDelivery();

// Its run for one number; none when nothing is to be printed. The store must outlive the run.
std::optional<ReportJobParts> deliveryReport(Connection& store, const QString& refNo);

// The record of the sale is tagged when its paper has been printed.
const DocumentTagging& deliveryTagging();
