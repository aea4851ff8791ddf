#include "demo/demo_payments.h"

#include "demo/required.h"
#include "platform/parsing.h"
#include "purchases/issued_checks.h"
#include "purchases/voucher_document.h"

#include <QMap>

namespace {
// What is paid without an order, every so many days.
struct Expense {
    const char* payee;
    const char* particulars;
    int everyDays, dayOfRound;
    int pesos, varying;
};
constexpr Expense expenses[] = {{"Tabunok Realty", "Rent of store and warehouse", 30, 4, 38000, 0},
                                {"Visayan Power Service", "Electricity", 30, 11, 9400, 2800},
                                {"Talisay Fuel Station", "Diesel for the delivery truck", 7, 2, 2100, 900}};

Currency pesos(int amount) { return Currency::fromInteger(amount); }
}  // namespace

void DemoPayments::bought(const QString& orderNo, const QString& supplier, int termDays, const QDate& day) {
    const int habit = dice_.below(12);
    const int late = habit == 0 ? 40 : dice_.below(5);
    planned_.insert(day.addDays(termDays + late), {orderNo, supplier});
}

void DemoPayments::pay(const QDate& day, int daysLeft) {
    payExpenses(day, daysLeft);
    if (daysLeft % 7 != 5) return;
    QMap<QString, QStringList> suppliers;
    while (!planned_.isEmpty() && planned_.firstKey() <= day) {
        const Due due = planned_.take(planned_.firstKey());
        suppliers[due.supplier] += due.orderNo;
    }
    for (auto supplier = suppliers.cbegin(); supplier != suppliers.cend(); ++supplier)
        paySupplier(supplier.key(), supplier.value(), day);
}

void DemoPayments::paySupplier(const QString& supplier, const QStringList& orders, const QDate& day) {
    VoucherDocument voucher = newVoucher(store_);
    voucher.contactName = supplier;
    for (const QString& order : orders) {
        VoucherPaymentEntry entry;
        entry.code = order;
        if (!CheckCode(store_, entry) || numberOrZero(entry.amount) <= Currency()) continue;
        voucher.payments +=
            makePayment(PaymentKind::Payable, order, day, numberOrZero(entry.amount), "Full payment");
    }
    if (voucher.payments.isEmpty()) return;
    issueChecks(voucher, day);
    require(saveVoucher(store_, voucher), "voucher " + voucher.code);
}

void DemoPayments::payExpenses(const QDate& day, int daysLeft) {
    for (const Expense& expense : expenses) {
        if (daysLeft % expense.everyDays != expense.dayOfRound) continue;
        VoucherDocument voucher = newVoucher(store_);
        voucher.contactName = expense.payee;
        const int varying = expense.varying == 0 ? 0 : dice_.below(expense.varying);
        voucher.payments += makePayment(PaymentKind::Direct, "OR " + QString::number(41500 - daysLeft), day,
                                        pesos(expense.pesos + varying), expense.particulars);
        issueChecks(voucher, day);
        require(saveVoucher(store_, voucher), "voucher " + voucher.code);
    }
}

void DemoPayments::issueChecks(VoucherDocument& voucher, const QDate& day) {
    Currency left = paymentTotal(voucher.payments);
    voucher.cash = left < pesos(5000);
    if (voucher.cash) return;
    const int count = left < pesos(50000) ? 1 : 1 + dice_.below(3);
    const Currency part = pesos(static_cast<int>(left.tenThousandths() / 10000 / count));
    for (int number = 0; number < count; ++number) {
        const Currency amount = number + 1 == count ? left : part;
        left -= amount;
        voucher.checks += makeCheck(QString::number(++lastCheck_), day.addDays(15 * number), amount,
                                    voucher.contactName, true);
    }
}

void DemoPayments::settleChecks(const QDate& day) {
    const Sql due{" AND CheckDate <= ?", {day}};
    const auto listed = std::get<QList<CheckRow>>(loadChecks(store_, issuedChecks, "Pending Checks", due));
    QList<StoredCheck> cleared;
    for (const CheckRow& row : listed)
        if (dice_.below(40) > 0) cleared += row.check;
    require(tagAsCleared(store_, issuedChecks, cleared, {{"tag", BoxAnswer::Yes}}), "cleared checks");
}
