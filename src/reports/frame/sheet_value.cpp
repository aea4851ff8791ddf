#include "reports/frame/sheet_value.h"

#include "platform/masks.h"
#include "platform/parsing.h"

#include <QRegularExpression>
#include <cstring>
#include <optional>

namespace {
constexpr int heldDigits = 15;
const QDate firstDay(1900, 3, 1);  // the days before it are counted in two ways

bool isOfMoments(const char* mask) { return std::strpbrk(mask, "ymdhs") != nullptr; }

qsizetype digitsOf(const QString& number) {
    static const QRegularExpression others("[^0-9]|^0+(?=[0-9])");
    return QString(number).remove(others).size();
}

// "(1,234.50)" and "-1,234.50" are one number.
QString plainNumber(const QString& text) {
    QString number = text;
    number.remove(',');
    if (number.startsWith('(') && number.endsWith(')')) number = '-' + number.mid(1, number.size() - 2);
    return number;
}

std::optional<SheetValue> maskedNumber(const QString& text, const char* mask) {
    const QString number = plainNumber(text);
    const auto value = parseNumber(number);
    if (!value || digitsOf(number) > heldDigits || formatNumber(*value, mask) != text) return {};
    return SheetValue{number.toDouble(), mask};
}

std::optional<SheetValue> maskedMoment(const QString& text, const char* mask) {
    QString day = QString(mask).section(' ', 0, 0), time = QString(mask).section(' ', 1);
    const QDateTime moment =
        QDateTime::fromString(text, day.replace('m', 'M') + (time.isEmpty() ? "" : " ") + time);
    if (!moment.isValid() || moment.date() < firstDay || formatDateTime(moment, mask) != text) return {};
    return SheetValue{moment, mask};
}

// A number in plain digits, with as many decimals as it shows.
std::optional<SheetValue> plainDigits(const QString& text) {
    static const QRegularExpression plain("^-?(0|[1-9][0-9]*)(\\.[0-9]+)?$");
    if (!plain.match(text).hasMatch() || digitsOf(text) > heldDigits) return {};
    const auto decimals = text.section('.', 1).size();
    return SheetValue{text.toDouble(), decimals > 0 ? "0." + QString(decimals, '0') : QString("0")};
}

std::optional<SheetValue> figureOf(const QString& text, const ReportControl& control) {
    if (control.mask)
        return isOfMoments(control.mask) ? maskedMoment(text, control.mask)
                                         : maskedNumber(text, control.mask);
    const bool isNumber = control.shows != Shows::Column || (control.style.alignment & Qt::AlignRight);
    return isNumber ? plainDigits(text) : std::nullopt;
}
}  // namespace

SheetValue sheetValue(const QString& text, const ReportControl& control) {
    return figureOf(text, control).value_or(SheetValue{text});
}
