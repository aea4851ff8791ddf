#include "purchases/issued_check.h"

#include "foundation/shared_routines.h"
#include "masters/master_records.h"
#include "platform/clock.h"
#include "platform/masks.h"
#include "platform/parsing.h"

CheckLine CheckLine::fromTexts(const QStringList& texts) {
    return {texts.value(Number), texts.value(Date), texts.value(Amount), texts.value(Cross),
            texts.value(PayeeName)};
}

CheckLine makeCheck(const QString& number, const QDate& date, Currency amount, const QString& payee,
                    bool crossed) {
    return lineOf({number, formatDate(date), formatNumber(amount, mask::amount), crossed, payee});
}

Currency CheckTotal(const QList<CheckLine>& checks) {
    Currency sum;
    for (const CheckLine& check : checks) sum += numberOrZero(check.amount);
    return sum;
}

CheckEntry newCheck() {
    CheckEntry entry;
    entry.date = formatDate(Clock::today());
    return entry;
}

CheckEntry entryOf(const CheckLine& check) {
    return {check.number, check.date, check.amount, check.cross != "None", check.payee};
}

CheckLine lineOf(const CheckEntry& entry) {
    const auto date = parseDate(entry.date);
    return {trim(entry.number), date ? formatDate(*date) : QString(),
            formatNumber(numberOrZero(entry.amount), mask::amount), entry.crossed ? "Cross" : "None",
            trim(entry.payee)};
}

Fault invalidCheckDate() { return errorFault("Invalid Check Date Entered!", "txtDate"); }

Outcome checkIssued(Connection& store, const CheckEntry& entry, const IsUsed& isUsed) {
    const QString number = trim(entry.number);
    if (number.isEmpty()) return errorFault("Please Enter Check No.!", "txtCheckNo");
    if (number.toUpper() == "CASH")
        return errorFault("You Cannot Enter the word 'Cash' as Your Check No.!", "txtCheckNo");
    if (!isNumeric(entry.amount)) return errorFault("Invalid Check Amount Entered!", "txtCheckAmount");
    if (!isDate(entry.date)) return invalidCheckDate();
    if (!RecordFound(store, "tblContactMaster", "ContactName", trim(entry.payee)))
        return errorFault("Payee Not Found! Please Enter Payee to Contact Master File!", "txtPayee");
    if (isUsed(number)) return errorFault("Check No. Already Been Used Below!", "txtCheckNo");
    return Done{};
}
