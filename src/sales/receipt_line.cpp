#include "sales/receipt_line.h"

#include "books/balances.h"
#include "documents/contact_figures.h"
#include "foundation/shared_routines.h"
#include "masters/master_records.h"
#include "platform/masks.h"
#include "platform/parsing.h"

namespace {
QString asAmount(Currency value) { return formatNumber(value, mask::amount); }
QString asPercent(Currency value) { return formatNumber(value, mask::discount); }

Recordset orderRow(Connection& store, const QString& orderNo) {
    return store.execute({"SELECT * FROM tblSalesMaster WHERE RefNo = ?", {trimRight(orderNo)}});
}

bool belongsTo(Connection& store, const Recordset& order, const QString& customerName) {
    const QString id = trim(contactIdOf(store, customerName));
    return order.trimmed("ContactNo").compare(id, Qt::CaseInsensitive) == 0;
}

// Steps of ValidateLine

std::optional<Fault> paidFault(const QString& orderNo, Currency balance) {
    if (!balance.isZero()) return std::nullopt;
    return errorFault("Cannot Save Payment! Sales Order No. " + orderNo + " had already been Paid!",
                      "txtSANo");
}

// The discount counts as it is shown, with two decimals: a payment of just what is required settles an order.
std::optional<Fault> overPaymentFault(const PaymentEntry& entry, Currency balance) {
    const Currency left = balance - (numberOrZero(entry.totalDiscount) + numberOrZero(entry.payment));
    if (!left.isNegative()) return std::nullopt;
    return errorFault("System Does Not Allow Over Payment! Balance of Sales Order No. " +
                          trim(entry.orderNo) + " is only " + entry.required +
                          ". System Detected Over Payment of " + left.toPlainText(),
                      "txtPayment");
}

std::optional<Fault> ownerFault(Connection& store, const QString& orderNo, const QString& customerName) {
    const Recordset order = orderRow(store, orderNo);
    if (order.eof())
        return Fault{exclamation("Duplicate!", "Sales Order Does Not Exist! Please Select a Sales Order!"),
                     "txtSANo"};
    if (belongsTo(store, order, customerName)) return std::nullopt;
    return errorFault("This Sales Order No. " + orderNo + " does not belong to " + customerName + "!",
                      "txtSANo");
}

std::optional<Fault> figureFault(const PaymentEntry& entry) {
    if (!isNumeric(entry.discount)) return errorFault("Invalid Discount Percentage!", "txtDiscount");
    if (!isNumeric(entry.totalDiscount)) return errorFault("Invalid Total Discount!", "txtDiscount");
    if (!isNumeric(entry.payment)) return errorFault("Invalid Payment Amount!", "txtPayment");
    return std::nullopt;
}

std::optional<Fault> discountFault(Connection& store, const QString& orderNo) {
    if (DiscountStillOpen(store, orderNo)) return std::nullopt;
    return errorFault(
        "You Have Already Posted a Payment Discount on This Delivery Receipt! You Cannot Anymore Post "
        "Additional Discount!",
        "txtDiscount");
}

std::optional<Fault> checkFault(const PaymentEntry& entry) {
    if (entry.checkNo.isEmpty()) return std::nullopt;
    if (trim(entry.checkNo).toUpper() == "CASH")
        return errorFault(
            "You Cannot Enter 'CASH' as your Check No.! If this is a cash payment you may want to check Cash "
            "Payment Option or Leave Check No. Blank!",
            "txtCheckNo");
    return checkDateFault(entry);
}

std::optional<Fault> unknownFault(Connection& store, const QString& orderNo) {
    if (RecordFound(store, "tblSalesMaster", "RefNo", orderNo)) return std::nullopt;
    return errorFault("Sales Reference No. or Delivery Receipt Not Found!", "txtSANo");
}

std::optional<Fault> typedFault(Connection& store, const PaymentEntry& entry,
                                const IsPaidAlready& isEntered) {
    const QString orderNo = trim(entry.orderNo);
    if (orderNo.isEmpty()) return errorFault("Please Enter Reference No.!", "txtSANo");
    if (auto fault = unknownFault(store, orderNo)) return fault;
    if (isEntered(orderNo)) return errorFault("Reference No. Already Been Entered Below!", "txtSANo");
    return std::nullopt;
}

std::optional<Fault> balanceFault(Connection& store, const PaymentEntry& entry) {
    const QString orderNo = trim(entry.orderNo);
    const Currency balance = SalesBalance(store, orderNo);
    if (entry.addMode)
        if (auto fault = paidFault(orderNo, balance)) return fault;
    return overPaymentFault(entry, balance);
}
}  // namespace

QStringList ReceiptLine::texts() const {
    return {reference, refDate, refAmount, discount, netAmount, checkNo, checkDate, remarks};
}

ReceiptLine ReceiptLine::fromTexts(const QStringList& texts) {
    return {texts.value(Reference), texts.value(RefDate), texts.value(RefAmount), texts.value(Discount),
            texts.value(NetAmount), texts.value(CheckNo), texts.value(CheckDate), texts.value(Remarks)};
}

std::optional<Fault> checkDateFault(const PaymentEntry& entry) {
    if (entry.checkNo.isEmpty() || isDate(entry.checkDate)) return std::nullopt;
    return errorFault("Invalid Check Date! You have entered a Check No. so you must also Enter a Check Date!",
                      "txtCheckDate");
}

Currency receiptTotal(const QList<ReceiptLine>& lines) {
    Currency sum;
    for (const ReceiptLine& line : lines) sum += numberOrZero(line.netAmount);
    return sum;
}

Currency discountAmount(const ReceiptLine& line) {
    return PercentOf(numberOrZero(line.discount), numberOrZero(line.refAmount));
}

Currency receiptDiscount(const QList<ReceiptLine>& lines) {
    Currency sum;
    for (const ReceiptLine& line : lines) sum += discountAmount(line);
    return numberOrZero(asAmount(sum));
}

PaymentEntry entryOf(const ReceiptLine& line) {
    PaymentEntry entry;
    entry.addMode = false;
    entry.orderNo = line.reference;
    entry.journalAmount = line.refAmount;
    entry.discount = line.discount;
    entry.payment = line.netAmount;
    entry.checkNo = line.checkNo;
    entry.checkDate = line.checkDate;
    ValidatePaymentMode(entry);
    return entry;
}

ReceiptLine lineOf(Connection& store, const PaymentEntry& entry) {
    ReceiptLine line;
    line.reference = trim(entry.orderNo);
    line.discount = asPercent(numberOrZero(entry.discount));
    line.netAmount = asAmount(numberOrZero(entry.payment));
    line.checkNo = trim(entry.checkNo);
    line.checkDate = entry.checkDate;
    if (const Recordset order = orderRow(store, line.reference); !order.eof()) {
        line.refDate = formatDate(order.date("RefDate"));
        line.refAmount = asAmount(order.currency("TotalAmount"));
        line.remarks = order.trimmed("Remarks");
    }
    return line;
}

OrderLookup CheckCode(Connection& store, const QString& customerName, PaymentEntry& entry) {
    const Recordset order = orderRow(store, entry.orderNo);
    if (order.eof()) {
        entry.journalAmount = entry.payment = entry.totalDiscount = "0.00";
        return {};
    }
    OrderLookup lookup{true, {}};
    const QString number = trim(entry.orderNo);
    if (!belongsTo(store, order, customerName)) {
        lookup.boxes +=
            exclamation("Error!", "Journal No. " + number + " does not belong to " + customerName + "!");
        return lookup;
    }
    if (entry.addMode && order.currency("Balance").isZero())
        lookup.boxes += exclamation("Error!", "Journal No." + number + " had already been Paid!");
    entry.orderNo = order.trimmed("RefNo");
    entry.journalAmount = asAmount(order.currency("TotalAmount"));
    entry.balance = asAmount(SalesBalance(store, entry.orderNo));
    ComputeDiscounts(entry);
    return lookup;
}

void ComputeDiscounts(PaymentEntry& entry) {
    const Currency amount = PercentOf(numberOrZero(entry.discount), numberOrZero(entry.journalAmount));
    const Currency required = numberOrZero(entry.balance) - amount;
    entry.totalDiscount = asAmount(amount);
    entry.required = asAmount(required);
}

void leaveDiscount(PaymentEntry& entry) {
    if (const auto percent = parseNumber(entry.discount)) entry.discount = asPercent(*percent);
    ComputeDiscounts(entry);
}

void leavePayment(PaymentEntry& entry) {
    if (const auto payment = parseNumber(entry.payment)) entry.payment = asAmount(*payment);
}

void leaveCheckNo(PaymentEntry& entry) {
    entry.checkNo = trim(entry.checkNo.toUpper());
    ValidatePaymentMode(entry);
}

void setCash(PaymentEntry& entry, bool cash) {
    entry.cash = cash;
    entry.checkNo.clear();
    entry.checkDate.clear();
}

void ValidatePaymentMode(PaymentEntry& entry) {
    entry.cash = entry.checkNo.isEmpty();
    if (entry.cash) entry.checkDate.clear();
}

bool DiscountStillOpen(Connection& store, const QString& orderNo) {
    const Recordset sum = store.execute(
        {"SELECT SUM(DiscountAmount) as TotalDiscount FROM tblReceiptDetails WHERE Reference = ?",
         {trimRight(orderNo)}});
    return sum.isNull("TotalDiscount") || sum.currency("TotalDiscount").isZero();
}

std::optional<Fault> ValidateLine(Connection& store, const QString& customerName, const PaymentEntry& entry,
                                  const IsPaidAlready& isEntered) {
    const QString orderNo = trim(entry.orderNo);
    if (auto fault = typedFault(store, entry, isEntered)) return fault;
    if (auto fault = balanceFault(store, entry)) return fault;
    if (auto fault = ownerFault(store, orderNo, customerName)) return fault;
    if (auto fault = figureFault(entry)) return fault;
    if (auto fault = discountFault(store, orderNo)) return fault;
    if (auto fault = checkFault(entry)) return fault;
    if (entry.addMode && numberOrZero(entry.balance) < numberOrZero(entry.payment))
        return errorFault("Invalid Payment Amount! Payment is Greater Than the Sales Order Balance Amount!",
                          "txtPayment");
    return std::nullopt;
}

std::vector<Sql> overtakenReads(const QList<ReceiptLine>& lines) {
    std::vector<Sql> reads;
    for (const ReceiptLine& line : lines) reads.push_back(PostedOnSaleQuery(line.reference));
    return reads;
}

std::optional<Fault> overtakenLine(Connection& store, const ReceiptLine& line) {
    const auto posted = postedOnSale(store, line.reference);
    if (!posted)
        if (auto fault = unknownFault(store, line.reference)) return fault;
    const Currency balance = posted ? posted->balance : SalesBalance(store, line.reference);
    if (auto fault = paidFault(line.reference, balance)) return fault;
    PaymentEntry entry = entryOf(line);
    entry.balance = asAmount(balance);
    ComputeDiscounts(entry);
    if (auto fault = overPaymentFault(entry, balance)) return fault;
    if (posted && posted->discount.isZero()) return std::nullopt;
    return discountFault(store, line.reference);
}
