#include "foundation/amount_in_words.h"

#include <cmath>

#include <gtest/gtest.h>

TEST(AmountInWords, IsWhatTheCheckSays) {
    const char* const refused = nullptr;
    const std::pair<double, const char*> table[] = {
        {0, "Zero"},
        {1e-9, " Pesos"},
        {0.5, " Pesos & 50/100"},
        {1, " One Pesos"},
        {100, " One Hundred Pesos"},
        {105, " One Hundred Five Pesos"},
        {120, " One Hundred Twenty Pesos"},
        {1000000001, " One Billion One Pesos"},
        {1234.5, " One Thousand Two Hundred Thirty Four Pesos & 50/100"},
        {110211312413,
         " One Hundred Ten Billion Two Hundred Eleven Million Three Hundred Twelve Thousand"
         " Four Hundred Thirteen Pesos"},
        {514615716817,
         " Five Hundred Fourteen Billion Six Hundred Fifteen Million Seven Hundred Sixteen"
         " Thousand Eight Hundred Seventeen Pesos"},
        {918019020034.09,
         " Nine Hundred Eighteen Billion Nineteen Million Twenty Thousand Thirty Four Pesos"
         " & 09/100"},
        {40050067080, " Forty Billion Fifty Million Sixty Seven Thousand Eighty Pesos"},
        {999999999999.99,
         " Nine Hundred Ninety Nine Billion Nine Hundred Ninety Nine Million Nine Hundred"
         " Ninety Nine Thousand Nine Hundred Ninety Nine Pesos & 99/100"},
        {70.00499, " Seventy Pesos"},
        {0.005, " Pesos & 01/100"},
        {1.005, " One Pesos & 01/100"},
        {2.665, " Two Pesos & 67/100"},
        {999.999, " Nine Hundred Ninety Nine Pesos"},
        {1e12, refused},
        {-0.01, refused},
        {NAN, refused}};
    for (const auto& [amount, words] : table)
        if (words == refused)
            EXPECT_THROW(AmountInWords(amount), SubscriptError) << amount;
        else
            EXPECT_EQ(AmountInWords(amount), words) << amount;
    EXPECT_EQ(HundredsInWords(0, 0, 0), "");
    EXPECT_THROW(HundredsInWords(0, 0, 20), SubscriptError);
}
