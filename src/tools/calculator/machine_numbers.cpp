#include "tools/calculator/machine_numbers.h"

#include <cmath>

namespace {
constexpr int digitsKept = 15;

// A value as its fifteen digits and the power of ten of the first one.
struct Digits {
    qint64 digits;
    int exponent;
};

Digits digitsOf(double value) {
    const QString text = QString::number(std::abs(value), 'e', digitsKept - 1);
    return {(text.left(1) + text.mid(2, digitsKept - 1)).toLongLong(), text.mid(digitsKept + 2).toInt()};
}

qint64 powerOfTen(int exponent) {
    qint64 power = 1;
    for (; exponent > 0; --exponent) power *= 10;
    return power;
}

// The last digits cut off, halves rounded up.
qint64 withoutLast(qint64 digits, int cut) {
    if (cut > digitsKept) return 0;
    return (digits + powerOfTen(cut) / 2) / powerOfTen(cut);
}

QString withoutZeros(QString text, int kept) {
    const qsizetype least = text.indexOf(u'.') + 1 + kept;
    while (text.size() > least && text.endsWith(u'0')) text.chop(1);
    return text;
}

int placesOf(double value) {
    Digits number = digitsOf(value);
    int places = digitsKept - 1 - number.exponent;
    for (; number.digits != 0 && number.digits % 10 == 0; number.digits /= 10) --places;
    return number.digits == 0 ? 0 : std::clamp(places, 0, 300);
}

QString exponentText(double value) {
    const QString text = QString::number(value, 'E', digitsKept - 1);
    const qsizetype exponent = text.indexOf(u'E');
    return withoutZeros(text.left(exponent), 1) + text.mid(exponent);
}
}  // namespace

double decimalSum(double a, double b) {
    return QString::number(a + b, 'f', std::max(placesOf(a), placesOf(b))).toDouble();
}

QString fixedText(double value, int places) {
    const Digits number = digitsOf(value);
    if (number.digits != 0 && number.exponent + 1 + places > digitsKept) return exponentText(value);
    const qint64 rounded = withoutLast(number.digits, digitsKept - 1 - number.exponent - places);
    QString text = QString::number(rounded).rightJustified(places + 1, u'0');
    text.insert(text.size() - places, u'.');
    return value < 0 && rounded != 0 ? u'-' + text : text;
}

QString wholeText(double value) {
    const int places = placesOf(value);
    const bool fits = places <= digitsKept && digitsOf(value).exponent < digitsKept;
    return fits ? withoutZeros(QString::number(value, 'f', std::max(places, 1)), 0) : exponentText(value);
}

QString fractionText(double value) {
    if (value != 0 && std::abs(value) < 1e-9) return exponentText(value);
    return withoutZeros(QString::number(value, 'f', digitsKept), 1);
}
