#include "platform/currency.h"

#include <cmath>
#include <limits>

namespace {
constexpr qint64 scale = 10000;
constexpr double rangeEnd = 9223372036854775808.0;  // the first whole number beyond a signed 64-bit count

__extension__ typedef __int128 Wide;

qint64 narrowed(Wide count) {
    if (count > std::numeric_limits<qint64>::max() || count < std::numeric_limits<qint64>::min())
        throw OverflowError();
    return static_cast<qint64>(count);
}

template <typename Whole>
Whole scaledDown(Whole product) {
    Whole quotient = product / scale;
    const Whole rest = product % scale;
    const Whole twice = 2 * (rest < 0 ? -rest : rest);
    if (twice > scale || (twice == scale && quotient % 2 != 0)) quotient += product < 0 ? -1 : 1;
    return quotient;
}
}  // namespace

Currency Currency::fromInteger(qint64 units) { return Currency(narrowed(Wide(units) * scale)); }

Currency Currency::fromDouble(double value) {
    const double count = std::nearbyint(value * scale);
    if (!(count >= -rangeEnd && count < rangeEnd)) throw OverflowError();
    return Currency(static_cast<qint64>(count));
}

QString Currency::toPlainText() const {
    const bool negative = count_ < 0;
    const quint64 magnitude = negative ? 0 - static_cast<quint64>(count_) : static_cast<quint64>(count_);
    QString text = QString::number(magnitude / scale);
    if (const quint64 fraction = magnitude % scale; fraction != 0) {
        text += u'.' + QString::number(fraction).rightJustified(4, u'0');
        while (text.endsWith(u'0')) text.chop(1);
    }
    return negative ? u'-' + text : text;
}

Currency Currency::abs() const { return isNegative() ? -*this : *this; }

Currency Currency::operator-() const { return Currency() - *this; }

Currency& Currency::operator+=(Currency other) {
    qint64 sum = 0;
    if (__builtin_add_overflow(count_, other.count_, &sum)) throw OverflowError();
    count_ = sum;
    return *this;
}

Currency& Currency::operator-=(Currency other) {
    qint64 difference = 0;
    if (__builtin_sub_overflow(count_, other.count_, &difference)) throw OverflowError();
    count_ = difference;
    return *this;
}

Currency operator*(Currency a, Currency b) {
    // Nearly every product fits 64 bits, whose division is many times faster than the wide one.
    qint64 product = 0;
    if (!__builtin_mul_overflow(a.count_, b.count_, &product)) return Currency(scaledDown(product));
    return Currency(narrowed(scaledDown(Wide(a.count_) * b.count_)));
}

Currency divide(Currency dividend, Currency divisor) {
    if (divisor.isZero()) throw OverflowError();
    return Currency::fromDouble(dividend.toDouble() / divisor.toDouble());
}
