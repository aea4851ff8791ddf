#pragma once
#include "platform/currency.h"
#include "platform/outcome.h"
#include "platform/store/connection.h"

#include <QDate>
#include <QList>
#include <QStringList>
#include <functional>

// The checks of a voucher, as its list and its dialog have them.

// One check, as the texts of its list: the texts are the data.
struct CheckLine {
    QString number;
    QString date;
    QString amount;  // two decimals
    QString cross;   // "Cross", for the payee's account only, or "None"
    QString payee;   // its name; may be another than the voucher's

    // The columns of the list, in order.
    enum Column { Number, Date, Amount, Cross, PayeeName };
    QStringList texts() const { return {number, date, amount, cross, payee}; }
    static CheckLine fromTexts(const QStringList& texts);
    bool isCrossed() const { return cross == "Cross"; }
    bool operator==(const CheckLine&) const = default;
};

// A check of these values, as the dialog makes it. Nothing is checked.
CheckLine makeCheck(const QString& number, const QDate& date, Currency amount, const QString& payee,
                    bool crossed = false);

// The sum of the amounts, leaving out texts that are no number. Throws OverflowError.
Currency CheckTotal(const QList<CheckLine>& checks);

// What the check dialog holds, as typed.
struct CheckEntry {
    QString number;
    QString date;
    QString amount = "0.00";
    bool crossed = false;
    QString payee;
};
// An empty one of today.
CheckEntry newCheck();
CheckEntry entryOf(const CheckLine& check);
CheckLine lineOf(const CheckEntry& entry);
Fault invalidCheckDate();

// The checks of a check, in their order. Done: it may become a line of the voucher. A number is used once in
// a voucher; "Cash" is no number, for it tells a payment in cash.
using IsUsed = std::function<bool(const QString& number)>;
Outcome checkIssued(Connection& store, const CheckEntry& entry, const IsUsed& isUsed);
