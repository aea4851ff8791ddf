#pragma once
#include "platform/currency.h"

#include <QDate>
#include <QString>
#include <optional>

// What a clerk types, read once at the edge.

// Without the blanks (U+0020 only) at both ends, or at the right end. A general white-space trim would eat
// characters of a scrambled password.
QString trim(const QString& text);
QString trimRight(const QString& text);

// A number as typed: digits with optional grouping commas, one point and a sign, blanks around it allowed.
// Not nan, 1e5 or 0x10; empty text is none. Digits beyond the fourth decimal round half to even; a number
// beyond Currency's range is none.
std::optional<Currency> parseNumber(const QString& text);
inline bool isNumeric(const QString& text) { return parseNumber(text).has_value(); }
// The number, or 0 for a text that is none.
Currency numberOrZero(const QString& text);

// A date as typed: month, day, year with '/' or '-' between, one or two digits each, the year two digits
// (00-29: 20xx, 30-99: 19xx) or four. ISO yyyy-mm-dd passes too. A day that the month lacks is none.
std::optional<QDate> parseDate(const QString& text);
inline bool isDate(const QString& text) { return parseDate(text).has_value(); }
