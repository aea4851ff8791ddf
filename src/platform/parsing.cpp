#include "platform/parsing.h"

#include <QRegularExpression>
#include <QRegularExpressionMatch>
#include <limits>

namespace {
constexpr QChar blank(u' ');

// The parts of a typed number, digits only.
struct TypedNumber {
    bool negative = false;
    QString whole;
    QString decimals;
};

std::optional<TypedNumber> readNumber(const QString& text) {
    static const QRegularExpression form(
        "\\A([+-]?) *((?:[0-9]{1,3}(?:,[0-9]{3})+|[0-9]+)?)(?:\\.([0-9]*))?\\z");
    const QRegularExpressionMatch match = form.match(trim(text));
    if (!match.hasMatch()) return std::nullopt;
    TypedNumber number{match.captured(1) == "-", match.captured(2).remove(u','), match.captured(3)};
    if (number.whole.isEmpty() && number.decimals.isEmpty()) return std::nullopt;
    return number;
}

// Whether the digits beyond the fourth decimal carry into it, halves to even.
bool roundsUp(const QString& tail, bool odd) {
    if (tail.isEmpty() || tail[0] != u'5') return !tail.isEmpty() && tail[0] > u'5';
    return odd || std::any_of(tail.begin() + 1, tail.end(), [](QChar digit) { return digit != u'0'; });
}

std::optional<quint64> magnitude(const TypedNumber& number) {
    constexpr quint64 most = quint64(std::numeric_limits<qint64>::max()) + 1;
    quint64 count = 0;
    for (const QChar digit : QString(number.whole + number.decimals.left(4).leftJustified(4, u'0'))) {
        const unsigned value = digit.unicode() - u'0';
        if (count > (most - value) / 10) return std::nullopt;
        count = count * 10 + value;
    }
    if (roundsUp(number.decimals.mid(4), count % 2 == 1)) ++count;
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
    const std::optional<TypedNumber> number = readNumber(text);
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
