#pragma once
#include <QString>
#include <stdexcept>

// A digit or an amount that the words have no place for.
struct SubscriptError : std::out_of_range {
    SubscriptError() : std::out_of_range("Subscript out of range") {}
};

// A check's amount in English words and pesos: " One Thousand Two Hundred Thirty Four Pesos & 50/100".
// Exactly 0 is "Zero", alone; every other text begins with a blank, which callers keep. The pesos are rounded
// down and the centavos to the nearest, halves up, each for itself: 999.999 has 999 pesos and no centavos.
// Throws SubscriptError for a negative amount, for a trillion or more, and for what is no number.
QString AmountInWords(double amount);

// A group of three digits, each 0 to 9: a blank before every word, empty for 000. Throws SubscriptError for a
// digit beyond the words.
QString HundredsInWords(qint16 hundreds, qint16 tens, qint16 ones);
