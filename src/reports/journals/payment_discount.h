#pragma once
#include "reports/frame/period_report.h"

#include <QHash>

// The discounts that payments took off sold lines: of each line its net price, less the percent of the first
// payment of its sale, times what was served. One statement, however many lines.

// By discountKey of the sale, for the sales of the period.
QHash<QString, Currency> discountsOfSales(Connection& store, const std::optional<Period>& period);
// By discountKey of the item, over all sales.
QHash<QString, Currency> discountsOfItems(Connection& store);

// A code as the store compares it: without regard to case.
QString discountKey(const QString& code);
