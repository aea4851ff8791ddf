#pragma once
#include <QMetaType>
#include <QString>
#include <compare>
#include <stdexcept>

// A sum, a product or a conversion that leaves the 64 bits of a Currency.
struct OverflowError : std::overflow_error {
    OverflowError() : std::overflow_error("Overflow") {}
};

// Money, prices and quantities: a 64-bit count of ten-thousandths. Every operation is checked and throws
// OverflowError rather than wrap; products and conversions round half to even.
class Currency {
  public:
    constexpr Currency() = default;
    static constexpr Currency fromTenThousandths(qint64 count) { return Currency(count); }
    static Currency fromInteger(qint64 units);
    // The nearest ten-thousandth, halves to even. Throws OverflowError beyond the range, and for nan.
    static Currency fromDouble(double value);

    constexpr qint64 tenThousandths() const { return count_; }
    double toDouble() const { return static_cast<double>(count_) / 10000.0; }
    // Plain digits without grouping and without trailing zeros: "12", "12.5", "-0.0001".
    QString toPlainText() const;
    constexpr bool isZero() const { return count_ == 0; }
    constexpr bool isNegative() const { return count_ < 0; }
    Currency abs() const;

    Currency operator-() const;
    Currency& operator+=(Currency other);
    Currency& operator-=(Currency other);
    friend Currency operator+(Currency a, Currency b) { return a += b; }
    friend Currency operator-(Currency a, Currency b) { return a -= b; }
    friend Currency operator*(Currency a, Currency b);
    friend constexpr auto operator<=>(Currency, Currency) = default;

  private:
    constexpr explicit Currency(qint64 count) : count_(count) {}
    qint64 count_ = 0;
};

// The quotient through double precision, rounded back half to even. Throws OverflowError on a divisor of 0.
Currency divide(Currency dividend, Currency divisor);

Q_DECLARE_METATYPE(Currency)
