#include "purchases/voucher_payment.h"

#include "foundation/shared_routines.h"
#include "masters/master_records.h"
#include "platform/masks.h"
#include "platform/parsing.h"

#include <algorithm>

namespace {
QString asAmount(Currency value) { return formatNumber(value, mask::amount); }

Recordset orderRow(Connection& store, const QString& code) {
    return store.execute({"SELECT * FROM tblPurchaseMaster WHERE PurchaseNo = ?", {trim(code)}});
}

std::optional<Fault> typedFault(const VoucherPaymentEntry& entry) {
    if (trim(entry.code).isEmpty()) return errorFault("Please Enter Reference for This Payment!", "cboCode");
    if (!isNumeric(entry.amount)) return errorFault("Invalid Amount Entered!", "txtAmount");
    if (!isDate(entry.date)) return invalidPaymentDate();
    return std::nullopt;
}

std::optional<Fault> payableFault(const Recordset& order, const Payee& payee,
                                  const VoucherPaymentEntry& entry) {
    if (order.eof())
        return errorFault("This Purchase Order No. Does Not Exist! Please Select Proper P.O. to Post!",
                          "cboCode");
    if (order.trimmed("ContactNo").compare(trim(payee.id), Qt::CaseInsensitive) != 0)
        return errorFault(trim(entry.code) + " does not belong to " + trim(payee.name) + "!", "cboCode");
    return std::nullopt;
}

std::optional<Fault> directFault(const Recordset& order) {
    if (order.eof()) return std::nullopt;
    return errorFault(
        "You cannot use this Reference No. for your Direct Expense, it is being used by Accounts Payable "
        "Module! Please Assign Another!",
        "cboCode");
}
}  // namespace

Fault invalidPaymentDate() { return errorFault("Invalid Date Entered!", "txtDate"); }

PaymentLine PaymentLine::fromTexts(const QStringList& texts) {
    return {texts.value(Reference), texts.value(Date), texts.value(Amount), texts.value(Particulars),
            texts.value(Direct)};
}

PaymentKind PaymentLine::kind() const {
    return numberOrZero(direct).isZero() ? PaymentKind::Payable : PaymentKind::Direct;
}

PaymentLine makePayment(PaymentKind kind, const QString& reference, const QDate& date, Currency amount,
                        const QString& particulars) {
    return lineOf({kind, reference, formatDate(date), asAmount(amount), particulars});
}

Currency paymentTotal(const QList<PaymentLine>& payments) {
    Currency sum;
    for (const PaymentLine& payment : payments) sum += numberOrZero(payment.amount);
    return sum;
}

bool PaymentsAreOfOneKind(const QList<PaymentLine>& payments) {
    return std::all_of(payments.begin(), payments.end(), [&](const PaymentLine& payment) {
        return !trim(payment.direct).isEmpty() && payment.kind() == payments.first().kind();
    });
}

VoucherPaymentEntry entryOf(const PaymentLine& payment) {
    return {payment.kind(), payment.reference, payment.date, payment.amount, payment.particulars};
}

PaymentLine lineOf(const VoucherPaymentEntry& entry) {
    const auto date = parseDate(entry.date);
    return {trim(entry.code), date ? formatDate(*date) : QString(), asAmount(numberOrZero(entry.amount)),
            trim(entry.particulars), entry.kind == PaymentKind::Direct ? "1" : "0"};
}

bool CheckCode(Connection& store, VoucherPaymentEntry& entry) {
    if (trim(entry.code).isEmpty()) {
        entry.amount = "0.00";
        entry.date.clear();
        return false;
    }
    const Recordset order = orderRow(store, entry.code);
    if (order.eof()) return false;
    entry.code = order.trimmed("PurchaseNo");
    entry.date = formatDate(order.date("PurchaseDate"));
    entry.amount = asAmount(order.currency("Balance"));
    entry.particulars = order.trimmed("Remarks");
    return true;
}

Outcome checkPayment(Connection& store, const Payee& payee, const VoucherPaymentEntry& entry,
                     const IsEntered& isEntered) {
    if (auto fault = typedFault(entry)) return *fault;
    const Recordset order = orderRow(store, entry.code);
    const bool isDirect = entry.kind == PaymentKind::Direct;
    if (auto fault = isDirect ? directFault(order) : payableFault(order, payee, entry)) return *fault;
    if (isEntered(trim(entry.code)))
        return errorFault("Reference Had Already Been Entered Below!", "cboCode");
    return Done{};
}
