#pragma once
#include "platform/currency.h"
#include "reports/frame/period_report.h"

#include <QHash>

// What the profit of the sales of a period is reckoned with: one statement each, however many sales. No
// period: of all sales.

// The cost of each sale, by discountKey of its number.
QHash<QString, Currency> costsOfSales(Connection& store, const std::optional<Period>& period);
// The cost of each item of each sale, by soldItemKey: that of its first row in the ledger.
QHash<QString, Currency> costsOfSoldItems(Connection& store, const std::optional<Period>& period);
// The discount that the payments of each sale were given in money, by discountKey of its number.
QHash<QString, Currency> grantedOnSales(Connection& store, const std::optional<Period>& period);

QString soldItemKey(const QString& sale, const QString& item);
// The percent that a discount is of a total; 0 of a total of 0.
Currency percentOfTotal(Currency discount, Currency total);
// Through double precision; 0 where there is no quantity.
Currency perUnit(Currency amount, Currency quantity);
