#pragma once
#include "platform/currency.h"

#include <QDateTime>
#include <QString>

// The output masks of the program. Printed numbers round half away from zero.
namespace mask {
inline constexpr const char* amount = "#,##0.00";
inline constexpr const char* price = "#,##0.0000";
inline constexpr const char* count = "#,##0";
inline constexpr const char* percent = "0.0000";
inline constexpr const char* discount = "0.00";
inline constexpr const char* signedAmount = "#,##0.00;(#,##0.00)";
inline constexpr const char* date = "mm/dd/yyyy";
inline constexpr const char* dateTime = "mm/dd/yyyy hh:mm:ss";
}  // namespace mask

// A number in a mask of '#', '0', ',' and '.', with an optional second section for negative numbers.
QString formatNumber(Currency value, const char* numberMask);
QString formatCount(qint64 value);  // "#,##0"

// A date in a mask of mm, mmmm, dd, yyyy, hh, mm after hh, ss. A null date gives an empty text.
QString formatDate(const QDate& date, const char* dateMask = mask::date);
QString formatDateTime(const QDateTime& moment, const char* dateMask = mask::dateTime);
