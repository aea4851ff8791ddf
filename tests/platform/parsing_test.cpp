#include "platform/parsing.h"

#include <gtest/gtest.h>

namespace {
constexpr const char* tooLong = "9999999999999999999999999999999999999999";
}

TEST(Parsing, NumbersAsAClerkTypesThem) {
    const std::pair<const char*, const char*> cases[] = {{"1,234.50", "1234.5"},
                                                         {"  12 ", "12"},
                                                         {"+7", "7"},
                                                         {"-1,234,567.8901", "-1234567.8901"},
                                                         {"- 5", "-5"},
                                                         {".5", "0.5"},
                                                         {"5.", "5"},
                                                         {"007", "7"},
                                                         {"0.00005", "0"},
                                                         {"0.00015", "0.0002"},
                                                         {"0.000050000001", "0.0001"},
                                                         {"-0.00025", "-0.0002"},
                                                         {"0.99995", "1"},
                                                         {"922337203685477.5807", "922337203685477.5807"},
                                                         {"-922337203685477.5808", "-922337203685477.5808"}};
    for (const auto& [typed, value] : cases) {
        const auto number = parseNumber(typed);
        ASSERT_TRUE(number) << typed;
        EXPECT_EQ(number->toPlainText(), value) << typed;
    }
}

TEST(Parsing, WhatIsNoNumber) {
    const QStringList cases =
        QString(
            "| |.|-|+|nan|inf|1e5|1E5|0x10|&H10|1 2|1,23|1,2345|,123|1.2.3|1.234,50|--1|5-|(5)|12a|\t5|5\n|"
            "1,234,|\u0661|922337203685477.5808|922337203685477.58075|-922337203685477.5809")
            .split('|') +
        QStringList{QString(40, u'9'), QString(100000, u'9'), QString()};
    for (const QString& typed : cases) {
        EXPECT_FALSE(isNumeric(typed)) << qPrintable(typed);
        EXPECT_EQ(numberOrZero(typed), Currency()) << qPrintable(typed);
    }
}

TEST(Parsing, DatesAsAClerkTypesThem) {
    const std::pair<const char*, QDate> cases[] = {
        {"2/3/26", {2026, 2, 3}},       {"02-03-2026", {2026, 2, 3}},   {"2-3-2026", {2026, 2, 3}},
        {"12/31/1999", {1999, 12, 31}}, {"1/1/29", {2029, 1, 1}},       {"1/1/30", {1930, 1, 1}},
        {"01/01/00", {2000, 1, 1}},     {" 2/29/2024 ", {2024, 2, 29}}, {"2026-02-03", {2026, 2, 3}}};
    for (const auto& [typed, date] : cases) EXPECT_EQ(parseDate(typed), date) << typed;
}

TEST(Parsing, WhatIsNoDate) {
    const char* const cases[] = {"",           "today",        "2/31/2026",   "02/29/2025", "13/1/2026",
                                 "0/1/2026",   "1/0/2026",     "2/3",         "2/3/6",      "2/3/026",
                                 "2/3-26",     "2.3.2026",     "2/3/26x",     "2026-2-3",   "2026-02-31",
                                 "2026/02/03", "1 / 2 / 2026", "002/03/2026", "1/1/0000",   "2/3/2026 10:00"};
    for (const char* typed : cases) EXPECT_FALSE(isDate(typed)) << typed;
}

TEST(Parsing, TrimTakesBlanksOnly) {
    EXPECT_EQ(trim("  a b  "), "a b");
    EXPECT_EQ(trim("   "), "");
    EXPECT_EQ(trim(QString()), "");
    EXPECT_EQ(trim("\ta\u00a0"), "\ta\u00a0");
    EXPECT_EQ(trim(" \n "), "\n");
    EXPECT_EQ(trimRight("  a  "), "  a");
}
