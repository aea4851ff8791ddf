#include "reports/checks/amount_reader.h"

#include <QHash>
#include <QStringList>

namespace {
const QHash<QString, int>& numbers() {
    static const QHash<QString, int> words{
        {"One", 1},      {"Two", 2},        {"Three", 3},     {"Four", 4},      {"Five", 5},
        {"Six", 6},      {"Seven", 7},      {"Eight", 8},     {"Nine", 9},      {"Ten", 10},
        {"Eleven", 11},  {"Twelve", 12},    {"Thirteen", 13}, {"Fourteen", 14}, {"Fifteen", 15},
        {"Sixteen", 16}, {"Seventeen", 17}, {"Eighteen", 18}, {"Nineteen", 19}, {"Twenty", 20},
        {"Thirty", 30},  {"Forty", 40},     {"Fifty", 50},    {"Sixty", 60},    {"Seventy", 70},
        {"Eighty", 80},  {"Ninety", 90}};
    return words;
}

const QHash<QString, qint64>& scales() {
    static const QHash<QString, qint64> words{
        {"Billion", 1'000'000'000}, {"Million", 1'000'000}, {"Thousand", 1'000}, {"Pesos", 1}};
    return words;
}

// Adds words up, from the greatest to the least: one that is out of its turn is refused.
class PesoCounter {
  public:
    bool take(const QString& word) {
        if (word == "Hundred") return takeHundred();
        if (const qint64 scale = scales().value(word)) return takeScale(scale);
        return takeNumber(numbers().value(word));
    }
    bool isComplete() const { return lastScale_ == 1; }
    qint64 pesos() const { return pesos_; }

  private:
    bool takeNumber(int number) {
        if (number == 0 || number >= room_ || isComplete()) return false;
        group_ += number;
        room_ = number >= 20 ? 10 : 1;
        return true;
    }

    bool takeHundred() {
        if (group_ < 1 || group_ > 9) return false;
        group_ *= 100;
        room_ = 100;
        return true;
    }

    bool takeScale(qint64 scale) {
        if (scale >= lastScale_ || (group_ == 0 && scale > 1)) return false;
        pesos_ += group_ * scale;
        lastScale_ = scale;
        group_ = 0;
        room_ = 1000;
        return true;
    }

    qint64 pesos_ = 0;
    qint64 lastScale_ = 1'000'000'000'000;
    int group_ = 0;    // below the scale that comes next
    int room_ = 1000;  // what comes next is less
};

// "50/100"
std::optional<int> centavosOf(const QString& text) {
    const QStringList parts = text.split(u'/');
    bool isNumber = false;
    const int centavos = parts.value(0).toInt(&isNumber);
    const bool isWhole = parts.size() == 2 && parts[0].size() == 2 && parts[1] == "100";
    return isNumber && isWhole && centavos > 0 ? std::optional(centavos) : std::nullopt;
}
}  // namespace

std::optional<Currency> AmountOfWords(const QString& text) {
    QStringList words = QString(text).remove(u'*').split(u' ', Qt::SkipEmptyParts);
    if (!words.isEmpty() && words.last() == "Only") words.removeLast();
    if (words == QStringList{"Zero"}) return Currency();
    PesoCounter counter;
    while (!words.isEmpty() && !counter.isComplete())
        if (!counter.take(words.takeFirst())) return std::nullopt;
    if (!counter.isComplete()) return std::nullopt;
    if (words.isEmpty()) return Currency::fromInteger(counter.pesos());
    const auto centavos = words.size() == 2 && words[0] == "&" ? centavosOf(words[1]) : std::nullopt;
    if (!centavos) return std::nullopt;
    return Currency::fromTenThousandths(counter.pesos() * 10'000 + *centavos * 100);
}
