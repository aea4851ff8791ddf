#include "purchases/print_voucher.h"

#include "foundation/session.h"
#include "reports/checks/check_report.h"
#include "reports/checks/prtVoucher.h"
#include "reports/frame/report_preview.h"

ChildScreen* PrintVoucher(const QString& voucherNo) {
    return previewFromEntry(voucherReport(StoreConnection(), voucherNo), &voucherTagging());
}

ChildScreen* PrintVoucherChecks(const QString& voucherNo) {
    const CheckPaper* paper = checkPaperFromEntry();
    return paper ? previewChecks(StoreConnection(), *paper, voucherNo) : nullptr;
}

ChildScreen* PrintVoucherAndChecks(const QString& voucherNo) {
    ChildScreen* voucher = PrintVoucher(voucherNo);
    ChildScreen* checks = voucher ? PrintVoucherChecks(voucherNo) : nullptr;
    return checks ? checks : voucher;
}
