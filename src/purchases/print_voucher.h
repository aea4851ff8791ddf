#pragma once
#include <QString>

class ChildScreen;

// The papers of a voucher as previews, for its entry screen and its journal. Null when there is nothing to
// show: a box has said so where it is no usual thing.

// Tags the voucher and its checks as printed.
ChildScreen* PrintVoucher(const QString& voucherNo);
// On the paper that the firm's settings name. None for a voucher paid in cash, and for a printer that is
// neither dot matrix nor laser.
ChildScreen* PrintVoucherChecks(const QString& voucherNo);
// Both; the checks stand in front.
ChildScreen* PrintVoucherAndChecks(const QString& voucherNo);
