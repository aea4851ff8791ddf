#pragma once
#include "documents/document_head.h"
#include "platform/progress.h"
#include "purchases/issued_check.h"
#include "purchases/voucher_payment.h"

// A payment voucher without its window: what was typed, and how it is loaded, checked and saved. It
// is the one writer of the checks that the firm issues.
//
//     VoucherDocument voucher = newVoucher(store);
//     voucher.contactName = "Cebu Traders";
//     voucher.payments = {makePayment(PaymentKind::Payable, "11-1001-2026", date, amount, "")};
//     voucher.checks = {makeCheck("000123", date, amount, "Cebu Traders")};
//     const Outcome outcome = saveVoucher(store, voucher);
struct VoucherDocument : DocumentHead {
    bool cash = false;  // paid in cash: the checks do not count
    QList<PaymentLine> payments = {};
    QList<CheckLine> checks = {};
};

// An empty voucher of today with the number that comes next. The number is peeked, not taken.
VoucherDocument newVoucher(Connection& store);

// A stored voucher, as its screen shows it. Throws StoreError: noCurrentRow when it is not there.
struct LoadedVoucher : StoredHead {
    VoucherDocument document;
};
LoadedVoucher loadVoucher(Connection& store, const QString& key);

// The checks before a save, in their order; a fault leaves all as it is.
std::optional<Fault> checkVoucher(Connection& store, const VoucherDocument& voucher);

// Checks the voucher and saves it, whole or not at all: the master row, the counter of a new one, the
// payments with the balances of the orders they pay, and the checks. All checks are written anew, pending
// and with new keys, whatever became of them before; an order that an edited voucher no longer pays keeps
// its balance until the next recompute. Done or a Fault, never a Question.
Outcome saveVoucher(Connection& store, const VoucherDocument& voucher);
