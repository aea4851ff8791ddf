#include "platform/parsing.h"

#include <QRegularExpression>
#include <QRegularExpressionMatch>
#include <limits>

namespace {
constexpr QChar blank(u' ');

// The parts of a typed number: the whole part with its commas, the decimals digits only.
struct TypedNumber {
    bool negative = false;
    QStringView whole;
    QStringView decimals;
};

bool isDigit(QChar character) { return character >= u'0' && character <= u'9'; }
bool areDigits(QStringView text) { return std::all_of(text.begin(), text.end(), isDigit); }

// Commas stand in threes or not at all.
bool isWhole(QStringView text) {
    const qsizetype first = text.indexOf(u',');
    if (first < 0) return areDigits(text);
    if (first == 0 || first > 3 || !areDigits(text.first(first))) return false;
    for (QStringView rest = text.sliced(first); !rest.isEmpty(); rest = rest.sliced(4))
        if (rest.size() < 4 || rest[0] != u',' || !areDigits(rest.sliced(1, 3))) return false;
    return true;
}

// Reads by itself: an expression costs several times as much, and a save reads dozens of numbers.
std::optional<TypedNumber> readNumber(QStringView text) {
    TypedNumber number;
    if (text.startsWith(u'+') || text.startsWith(u'-')) {
        number.negative = text[0] == u'-';
        text = text.sliced(1);
    }
    while (text.startsWith(blank)) text = text.sliced(1);
    const qsizetype point = text.indexOf(u'.');
    number.whole = text.first(point < 0 ? text.size() : point);
    if (point >= 0) number.decimals = text.sliced(point + 1);
    if (number.whole.isEmpty() && number.decimals.isEmpty()) return std::nullopt;
    if (!isWhole(number.whole) || !areDigits(number.decimals)) return std::nullopt;
    return number;
}

// Whether the digits beyond the fourth decimal carry into it, halves to even.
bool roundsUp(QStringView tail, bool odd) {
    if (tail.isEmpty() || tail[0] != u'5') return !tail.isEmpty() && tail[0] > u'5';
    return odd || std::any_of(tail.begin() + 1, tail.end(), [](QChar digit) { return digit != u'0'; });
}

// Adds a digit at the end; false beyond the range.
bool append(quint64& count, QChar digit) {
    constexpr quint64 most = quint64(std::numeric_limits<qint64>::max()) + 1;
    const unsigned value = digit.unicode() - u'0';
    if (count > (most - value) / 10) return false;
    count = count * 10 + value;
    return true;
}

std::optional<quint64> magnitude(const TypedNumber& number) {
    quint64 count = 0;
    for (const QChar digit : number.whole)
        if (digit != u',' && !append(count, digit)) return std::nullopt;
    for (int place = 0; place < 4; ++place)
        if (!append(count, place < number.decimals.size() ? number.decimals[place] : QChar(u'0')))
            return std::nullopt;
    if (number.decimals.size() > 4 && roundsUp(number.decimals.sliced(4), count % 2 == 1)) ++count;
    return count;
}

int fullYear(const QString& typed) {
    const int year = typed.toInt();
    if (typed.size() > 2) return year;
    return year < 30 ? 2000 + year : 1900 + year;
}

std::optional<QDate> existing(const QDate& date) {
    return date.isValid() ? std::optional(date) : std::nullopt;
}
}  // namespace

QString trimRight(const QString& text) {
    qsizetype end = text.size();
    while (end > 0 && text[end - 1] == blank) --end;
    return text.left(end);
}

QString trim(const QString& text) {
    const QString shortened = trimRight(text);
    qsizetype start = 0;
    while (start < shortened.size() && shortened[start] == blank) ++start;
    return shortened.mid(start);
}

std::optional<Currency> parseNumber(const QString& text) {
    const QString typed = trim(text);
    const std::optional<TypedNumber> number = readNumber(typed);
    if (!number) return std::nullopt;
    const std::optional<quint64> count = magnitude(*number);
    const quint64 most = quint64(std::numeric_limits<qint64>::max()) + (number->negative ? 1 : 0);
    if (!count || *count > most) return std::nullopt;
    return Currency::fromTenThousandths(static_cast<qint64>(number->negative ? 0 - *count : *count));
}

Currency numberOrZero(const QString& text) { return parseNumber(text).value_or(Currency()); }

std::optional<QDate> parseDate(const QString& text) {
    static const QRegularExpression typed("\\A([0-9]{1,2})([/-])([0-9]{1,2})\\2([0-9]{2}|[0-9]{4})\\z");
    static const QRegularExpression iso("\\A([0-9]{4})-([0-9]{2})-([0-9]{2})\\z");
    const QString date = trim(text);
    if (const auto match = typed.match(date); match.hasMatch())
        return existing(
            QDate(fullYear(match.captured(4)), match.captured(1).toInt(), match.captured(3).toInt()));
    if (const auto match = iso.match(date); match.hasMatch())
        return existing(
            QDate(match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt()));
    return std::nullopt;
}
