#include "platform/masks.h"

#include <limits>

#include <gtest/gtest.h>

namespace {
struct NumberCase {
    qint64 tenThousandths;
    const char* mask;
    const char* text;
};
}  // namespace

TEST(Masks, NumbersRoundHalfAwayFromZero) {
    const NumberCase cases[] = {{0, mask::amount, "0.00"},
                                {50, mask::amount, "0.01"},
                                {49, mask::amount, "0.00"},
                                {-50, mask::amount, "-0.01"},
                                {-49, mask::amount, "0.00"},
                                {10250, mask::amount, "1.03"},
                                {9999950, mask::amount, "1,000.00"},
                                {12345678900, mask::amount, "1,234,567.89"},
                                {std::numeric_limits<qint64>::max(), mask::amount, "922,337,203,685,477.58"},
                                {std::numeric_limits<qint64>::min(), mask::amount, "-922,337,203,685,477.58"},
                                {12345, mask::price, "1.2345"},
                                {100000000, mask::price, "10,000.0000"},
                                {5000, mask::count, "1"},
                                {15000, mask::count, "2"},
                                {-25000, mask::count, "-3"},
                                {4999, mask::count, "0"},
                                {12345678, mask::percent, "1234.5678"},
                                {1250, mask::discount, "0.13"},
                                {-12345600, mask::signedAmount, "(1,234.56)"},
                                {-40, mask::signedAmount, "0.00"}};
    for (const auto& [count, numberMask, text] : cases)
        EXPECT_EQ(formatNumber(Currency::fromTenThousandths(count), numberMask), text)
            << count << ' ' << numberMask;
}

TEST(Masks, CountsAreGrouped) {
    const std::pair<qint64, const char*> cases[] = {
        {0, "0"},
        {999, "999"},
        {1000, "1,000"},
        {-1234567, "-1,234,567"},
        {std::numeric_limits<qint64>::min(), "-9,223,372,036,854,775,808"}};
    for (const auto& [value, text] : cases) EXPECT_EQ(formatCount(value), text);
}

TEST(Masks, DatesKeepTheirZeros) {
    const QDate date(2026, 3, 9);
    const QDateTime moment(date, QTime(14, 5, 7));
    EXPECT_EQ(formatDate(date), "03/09/2026");
    EXPECT_EQ(formatDate(date, "mmmm dd, yyyy"), "March 09, 2026");
    EXPECT_EQ(formatDate(date, "mm"), "03");
    EXPECT_EQ(formatDate(date, "yyyy"), "2026");
    EXPECT_EQ(formatDateTime(moment, "hh:mm mm/dd"), "14:05 03/09");
    EXPECT_EQ(formatDateTime(moment), "03/09/2026 14:05:07");
    EXPECT_EQ(formatDate(QDate()), "");
    EXPECT_EQ(formatDateTime(QDateTime()), "");
}
