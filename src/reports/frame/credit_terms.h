#pragma once
#include "platform/currency.h"

#include <QDate>
#include <QString>

// The days that a contact has to pay.

// "30 Days"
QString termText(Currency days);
// The day that a document of this date is to be paid by; part of a day does not count.
QDate dueDate(const QDate& date, Currency days);
