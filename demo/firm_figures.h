#pragma once
#include "platform/currency.h"

#include <QDate>
#include <QStringList>

class Connection;

// What a firm's owner asks at the end of a day.
struct FirmFigures {
    Currency receivable;   // the balances of all sales
    Currency payable;      // the balances of all purchases
    Currency stockValue;   // of every item, cost price x balance
    Currency salesOfDay;   // the totals of the day's sales
    Currency costOfSales;  // of the day's sales, as far as they are costed
    qint64 waiting = 0;    // documents that wait for the end of day
};

FirmFigures firmFigures(Connection& store, const QDate& day);

// A table of lines: what, before, after.
QStringList figuresTable(const FirmFigures& before, const FirmFigures& after);
