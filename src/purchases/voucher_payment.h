#pragma once
#include "platform/currency.h"
#include "platform/outcome.h"
#include "platform/store/connection.h"

#include <QDate>
#include <QList>
#include <QStringList>
#include <functional>

// The payments of a voucher: supplier invoices held as purchase orders, or expenses that have none.
enum class PaymentKind { Payable, Direct };

// One payment, as the texts of its list: the texts are the data.
struct PaymentLine {
    QString reference;  // the purchase order paid, or a free reference of an expense
    QString date;
    QString amount;  // two decimals
    QString particulars;
    QString direct;  // "1" or "0"

    // The columns of the list, in order.
    enum Column { Reference, Date, Amount, Particulars, Direct };
    QStringList texts() const { return {reference, date, amount, particulars, direct}; }
    static PaymentLine fromTexts(const QStringList& texts);
    PaymentKind kind() const;
    bool operator==(const PaymentLine&) const = default;
};

// A payment of these values, as the dialog makes it. Nothing is checked.
PaymentLine makePayment(PaymentKind kind, const QString& reference, const QDate& date, Currency amount,
                        const QString& particulars);

// The sum of the amounts, leaving out texts that are no number. Throws OverflowError.
Currency paymentTotal(const QList<PaymentLine>& payments);
// False for a payment that tells no kind, and for two kinds in one voucher.
bool PaymentsAreOfOneKind(const QList<PaymentLine>& payments);

// What the payment dialog holds, as typed.
struct VoucherPaymentEntry {
    PaymentKind kind = PaymentKind::Payable;
    QString code;
    QString date;
    QString amount = "0.00";
    QString particulars;
};
VoucherPaymentEntry entryOf(const PaymentLine& payment);
PaymentLine lineOf(const VoucherPaymentEntry& entry);
Fault invalidPaymentDate();

// Looks the purchase order up and fills the entry with it: the amount is all that is still owed. False, with
// nothing filled, when there is no such order; an empty code empties the date and the amount.
bool CheckCode(Connection& store, VoucherPaymentEntry& entry);

// The checks of a payment to this payee, in their order. Done: it may become a line of the voucher. What is
// owed is no limit: part payments and overpayments pass.
struct Payee {
    QString id;
    QString name;
};
using IsEntered = std::function<bool(const QString& code)>;
Outcome checkPayment(Connection& store, const Payee& payee, const VoucherPaymentEntry& entry,
                     const IsEntered& isEntered);
