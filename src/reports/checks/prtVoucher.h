#pragma once
#include "reports/frame/report_start.h"

class Connection;

// The payment voucher: an acknowledgement slip, what is paid in the left half, and the checks that pay it in
// the right.
const ReportLayout& prtVoucher();
const ReportLayout& prtVoucherReference();
const ReportLayout& prtVoucherChecks();

// Its run for one number; none when there is no such voucher. The store must outlive the run.
std::optional<ReportJobParts> voucherReport(Connection& store, const QString& voucherNo);

// The checks are tagged before the voucher, and the voucher alone is locked.
const DocumentTagging& voucherTagging();
