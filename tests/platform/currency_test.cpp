#include "platform/currency.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace {
constexpr qint64 most = std::numeric_limits<qint64>::max();
constexpr qint64 least = std::numeric_limits<qint64>::min();

Currency ten4(qint64 count) { return Currency::fromTenThousandths(count); }

struct Product {
    qint64 a, b, result;
};
}  // namespace

TEST(Currency, ProductsRoundHalfToEven) {
    const Product cases[] = {
        {100000, 50000, 500000},  // 10 x 5
        {1, 5000, 0},             // 0.00005 stays at the even 0
        {3, 5000, 2},             // 0.00015 goes to the even 0.0002
        {5, 5000, 2},             // 0.00025 stays at the even 0.0002
        {-1, 5000, 0},            // the same below zero
        {-3, 5000, -2},
        {-5, 5000, -2},
        {1, 5001, 1},         // just above the half
        {1, 4999, 0},         // just below
        {most, 10000, most},  // beyond 64 bits on the way
        {least, 10000, least},
        {most, -10000, -most},
        {most, 5000, most / 2 + 1},  // 4611686018427387903.5 goes to the even neighbour
        {least, 5000, least / 2},
        {most - 2, 5000, most / 2 - 1},  // ...902.5 stays at it
    };
    for (const auto& [a, b, result] : cases) {
        EXPECT_EQ((ten4(a) * ten4(b)).tenThousandths(), result) << a << " x " << b;
        EXPECT_EQ((ten4(b) * ten4(a)).tenThousandths(), result) << b << " x " << a;
    }
}

TEST(Currency, DoublesRoundHalfToEven) {
    const std::pair<double, qint64> cases[] = {{0.0, 0},
                                               {1.0, 10000},
                                               {0.00005, 0},
                                               {0.03125, 312},
                                               {0.09375, 938},
                                               {-0.09375, -938},
                                               {0.031250001, 313},
                                               {1.23455, 12346},
                                               {123456789.12345, 1234567891234},
                                               {5.666666666, 56667},
                                               {-922337203685.5, -9223372036855000}};
    for (const auto& [value, count] : cases)
        EXPECT_EQ(Currency::fromDouble(value).tenThousandths(), count) << value;
}

TEST(Currency, WhatLeavesTheRangeThrows) {
    const std::function<void()> cases[] = {
        [] { ten4(most) + ten4(1); },
        [] { ten4(least) + ten4(-1); },
        [] { ten4(least) - ten4(1); },
        [] { ten4(0) - ten4(least); },
        [] { -ten4(least); },
        [] { ten4(least).abs(); },
        [] { ten4(most) * ten4(10001); },
        [] { ten4(least) * ten4(-10000); },
        [] { ten4(most) * ten4(most); },
        [] { Currency::fromInteger(922337203685478); },
        [] { Currency::fromInteger(least); },
        [] { Currency::fromDouble(922337203685477.6); },
        [] { Currency::fromDouble(-1e300); },
        [] { Currency::fromDouble(std::numeric_limits<double>::infinity()); },
        [] { Currency::fromDouble(std::nan("")); },
        [] { divide(ten4(1), ten4(0)); },
        [] { divide(ten4(0), ten4(0)); },
        [] { divide(ten4(most), ten4(1)); }};
    for (size_t at = 0; at < std::size(cases); ++at)
        EXPECT_THROW(cases[at](), OverflowError) << "case " << at;
}

TEST(Currency, AFailedSumLeavesTheValue) {
    Currency value = ten4(most);
    EXPECT_THROW(value += ten4(1), OverflowError);
    EXPECT_EQ(value, ten4(most));
    value = ten4(least);
    EXPECT_THROW(value -= ten4(1), OverflowError);
    EXPECT_EQ(value, ten4(least));
}

TEST(Currency, QuotientsGoThroughDouble) {
    EXPECT_EQ(divide(Currency::fromInteger(85), Currency::fromInteger(15)), ten4(56667));
    EXPECT_EQ(divide(ten4(-1), Currency::fromInteger(3)), ten4(0));
    EXPECT_EQ(divide(ten4(5), Currency::fromInteger(2)), ten4(2));
    EXPECT_EQ(divide(ten4(15), Currency::fromInteger(10)), ten4(2));
}

TEST(Currency, PlainTextHasNoGroupsAndNoTrailingZeros) {
    const std::pair<qint64, const char*> cases[] = {{0, "0"},
                                                    {10000, "1"},
                                                    {125000, "12.5"},
                                                    {-1, "-0.0001"},
                                                    {12345600, "1234.56"},
                                                    {-10010, "-1.001"},
                                                    {most, "922337203685477.5807"},
                                                    {least, "-922337203685477.5808"}};
    for (const auto& [count, text] : cases) EXPECT_EQ(ten4(count).toPlainText(), text);
}
