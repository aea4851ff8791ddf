#include "bench/station.h"
#include "masters/master_records.h"
#include "platform/clock.h"
#include "platform/parsing.h"
#include "purchases/purchase_document.h"
#include "purchases/voucher_document.h"

QString buy(Station& station) {
    const QString code = station.saved(purchaseOrders, station.any(station.suppliers), 20);
    if (code.isEmpty()) return {};
    station.purchases += code;
    return "new purchase " + code;
}

QString pay(Station& station) {
    const QString code = station.any(station.purchases);
    if (code.isEmpty()) return {};
    VoucherPaymentEntry entry;
    entry.code = code;
    if (!CheckCode(station.store, entry) || numberOrZero(entry.amount) <= Currency()) return {};
    const Recordset order =
        station.store.execute({"SELECT ContactNo FROM tblPurchaseMaster WHERE PurchaseNo = ?", {code}});
    for (int left = 20; left > 0; --left) {
        VoucherDocument voucher = newVoucher(station.store);
        voucher.contactName = contactNameOf(station.store, order.text("ContactNo"));
        voucher.cash = true;
        voucher.payments += makePayment(PaymentKind::Payable, code, Clock::today(),
                                        numberOrZero(entry.amount), "Full payment");
        if (isSaved(saveVoucher(station.store, voucher))) return "new voucher " + voucher.code;
    }
    return {};
}
