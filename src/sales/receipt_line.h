#pragma once
#include "platform/outcome.h"
#include "platform/store/connection.h"

#include <QStringList>
#include <functional>
#include <optional>

// One line of a payment receipt, as the texts of its list: the texts are the data. Amounts and the percent
// have two decimals; a cash line has no check number and no check date.
struct ReceiptLine {
    QString reference;  // the sales order paid
    QString refDate;
    QString refAmount;
    QString discount;  // percent of the order's amount
    QString netAmount;
    QString checkNo;
    QString checkDate;
    QString remarks;

    // The columns of the list, in order.
    enum Column { Reference, RefDate, RefAmount, Discount, NetAmount, CheckNo, CheckDate, Remarks };
    QStringList texts() const;
    static ReceiptLine fromTexts(const QStringList& texts);
    bool operator==(const ReceiptLine&) const = default;
};

// The sum of the payments, leaving out texts that are no number. Throws OverflowError.
Currency receiptTotal(const QList<ReceiptLine>& lines);
// The discount that a line grants, to the ten-thousandth. Throws OverflowError.
Currency discountAmount(const ReceiptLine& line);
// The discounts of all lines, rounded to two decimals as a whole. Throws OverflowError.
Currency receiptDiscount(const QList<ReceiptLine>& lines);

// What the popup of a line holds, as typed.
struct PaymentEntry {
    bool addMode = true;  // a line being added; else one being changed
    QString orderNo = {};
    QString journalAmount = "0.00";  // the order's amount
    QString balance = "0.00";
    QString discount = "0.00";
    QString totalDiscount = "0.00";
    QString required = "0.00";  // the balance less the discount
    QString payment = "0.00";
    bool cash = false;
    QString checkNo = {};
    QString checkDate = {};
};
PaymentEntry entryOf(const ReceiptLine& line);
// The line with its order's date, amount and remarks. Throws StoreError.
ReceiptLine lineOf(Connection& store, const PaymentEntry& entry);

// Looks the order up and fills its figures in. Unknown: payment and amounts become 0.00. Someone else's order
// is known, with a box, and fills nothing; one that is already paid gets a box and is filled in.
struct OrderLookup {
    bool known = false;
    Boxes boxes;
};
OrderLookup CheckCode(Connection& store, const QString& customerName, PaymentEntry& entry);

// Total discount and required payment, from amount, balance and percent. Throws OverflowError.
void ComputeDiscounts(PaymentEntry& entry);
// What leaving a field does to its text.
void leaveDiscount(PaymentEntry& entry);  // throws OverflowError
void leavePayment(PaymentEntry& entry);
void leaveCheckNo(PaymentEntry& entry);
// The refusal of a check without a date.
std::optional<Fault> checkDateFault(const PaymentEntry& entry);

// Ticking cash, or clearing it, empties both check fields.
void setCash(PaymentEntry& entry, bool cash);
// No check number is cash, and a check number is none.
void ValidatePaymentMode(PaymentEntry& entry);

// An order with a posted discount takes no further payment line, not even one without a discount.
bool DiscountStillOpen(Connection& store, const QString& orderNo);

// The checks of a line, in their order; none: the entry may become a line of the list.
using IsPaidAlready = std::function<bool(const QString& orderNo)>;  // on this receipt
std::optional<Fault> ValidateLine(Connection& store, const QString& customerName, const PaymentEntry& entry,
                                  const IsPaidAlready& isEntered);

// What of these checks another clerk may have overtaken since: the order has gone, is paid, has less to pay,
// or has a discount posted.
std::optional<Fault> overtakenLine(Connection& store, const ReceiptLine& line);
// What it asks of the store for these lines, to be read ahead.
std::vector<Sql> overtakenReads(const QList<ReceiptLine>& lines);
