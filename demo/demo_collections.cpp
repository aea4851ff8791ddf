#include "demo/demo_collections.h"

#include "books/balances.h"
#include "demo/required.h"
#include "platform/masks.h"
#include "platform/parsing.h"
#include "sales/receipt_document.h"
#include "sales/received_checks.h"

#include <QMap>

void DemoCollections::sold(const QString& refNo, const QString& customer, int termDays, const QDate& day) {
    const int habit = dice_.below(20);
    const QDate due = day.addDays(termDays - dice_.below(termDays / 3 + 1));
    if (habit < 2) {
        planned_.insert(day.addDays(termDays + 75), {refNo, customer, false, false});
    } else if (habit < 5) {
        planned_.insert(due, {refNo, customer, true, false});
        planned_.insert(due.addDays(20), {refNo, customer, false, false});
    } else if (habit < 7) {
        planned_.insert(day.addDays(std::min(termDays, 5)), {refNo, customer, false, true});
    } else {
        planned_.insert(due, {refNo, customer, false, false});
    }
}

void DemoCollections::collect(const QDate& day) {
    QMap<QString, QList<Due>> customers;
    while (!planned_.isEmpty() && planned_.firstKey() <= day) {
        const Due due = planned_.take(planned_.firstKey());
        customers[due.customer] += due;
    }
    for (auto customer = customers.cbegin(); customer != customers.cend(); ++customer)
        post(customer.key(), customer.value(), day);
}

void DemoCollections::post(const QString& customer, const QList<Due>& dues, const QDate& day) {
    const bool byCheck = dice_.below(5) < 3;
    const QString checkNo = byCheck ? QString::number(++lastCheck_) : QString();
    const QString checkDate = byCheck ? formatDate(day.addDays(15 * dice_.below(4))) : QString();
    ReceiptDocument receipt = newReceipt(store_);
    receipt.contactName = customer;
    for (const Due& due : dues) {
        PaymentEntry entry{.orderNo = due.refNo, .discount = due.prompt ? "2" : "0"};
        CheckCode(store_, customer, entry);
        const Currency required = numberOrZero(entry.balance) - numberOrZero(entry.totalDiscount);
        if (required <= Currency()) continue;
        entry.payment =
            formatNumber(due.half ? divide(required, Currency::fromInteger(2)) : required, mask::amount);
        entry.checkNo = checkNo;
        entry.checkDate = checkDate;
        receipt.lines += lineOf(store_, entry);
    }
    if (!receipt.lines.isEmpty()) require(saveReceipt(store_, receipt), "receipt " + receipt.code);
}

void DemoCollections::settleChecks(const QDate& day) {
    const Sql due{" AND CheckDate <= ?", {day}};
    const auto listed = std::get<QList<CheckRow>>(loadChecks(store_, receivedChecks, "Pending Checks", due));
    const QStringList bounces{check::drawnAgainstInsufficient, check::drawnAgainstUncollected,
                              check::accountClosed};
    QList<StoredCheck> cleared;
    int bounced = 0;
    for (const CheckRow& row : listed) {
        if (dice_.below(60) > 0) {
            cleared += row.check;
            continue;
        }
        CheckStatusEntry entry = statusEntryOf(row.check);
        chooseStatus(entry, bounces[bounced++ % bounces.size()]);
        require(updateCheck(store_, receivedChecks, row.check, entry).outcome, "check " + row.check.number);
    }
    require(tagAsCleared(store_, receivedChecks, cleared, {{"tag", BoxAnswer::Yes}}), "cleared checks");
}
