#include "foundation/amount_in_words.h"

#include <cmath>

namespace {
constexpr const char* onesWords[] = {"",        "One",     "Two",       "Three",    "Four",
                                     "Five",    "Six",     "Seven",     "Eight",    "Nine",
                                     "Ten",     "Eleven",  "Twelve",    "Thirteen", "Fourteen",
                                     "Fifteen", "Sixteen", "Seventeen", "Eighteen", "Nineteen"};
constexpr const char* tensWords[] = {"",      "",      "Twenty",  "Thirty", "Forty",
                                     "Fifty", "Sixty", "Seventy", "Eighty", "Ninety"};

constexpr struct {
    qint64 unit;
    const char* name;
} groups[] = {{1'000'000'000, " Billion"}, {1'000'000, " Million"}, {1'000, " Thousand"}, {1, ""}};

constexpr double limit = 1e12;         // twelve digits of pesos
constexpr int significantDigits = 15;  // that a double keeps of any decimal number

template <size_t Count>
QString word(const char* const (&words)[Count], int index) {
    if (index < 0 || index >= int(Count)) throw SubscriptError();
    return u' ' + QString(words[index]);
}

QString groupInWords(qint64 group) {
    return HundredsInWords(qint16(group / 100), qint16(group / 10 % 10), qint16(group % 10));
}

// Rounds the decimal that the amount stands for: 1.005 is a half, though its double lies a shade below.
int centavosOf(double amount, qint64 pesos) {
    const auto pesoDigits = int(QString::number(pesos).size());
    const QString digits = QString::number(amount, 'f', significantDigits - pesoDigits);
    const int thousandths = digits.section(u'.', 1).left(3).toInt();
    return (thousandths + 5) / 10 % 100;
}
}  // namespace

QString HundredsInWords(qint16 hundreds, qint16 tens, qint16 ones) {
    QString text;
    if (hundreds + tens + ones == 0) return text;
    if (hundreds >= 1) text += word(onesWords, hundreds) + " Hundred";
    if (tens < 2) {
        if (tens + ones > 0) text += word(onesWords, tens * 10 + ones);
        return text;
    }
    text += word(tensWords, tens);
    if (ones > 0) text += word(onesWords, ones);
    return text;
}

QString AmountInWords(double amount) {
    if (amount == 0) return "Zero";
    if (!(amount > 0 && amount < limit)) throw SubscriptError();
    const auto pesos = qint64(std::floor(amount));
    QString text;
    for (const auto& [unit, name] : groups)
        if (const qint64 group = pesos / unit % 1000; group > 0) text += groupInWords(group) + name;
    text += " Pesos";
    if (const int centavos = centavosOf(amount, pesos); centavos > 0)
        text += " & " + QString::number(centavos).rightJustified(2, u'0') + "/100";
    return text;
}
