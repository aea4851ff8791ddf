#include "platform/masks.h"

#include <QDate>
#include <QHash>
#include <QLocale>

#include <cstring>
#include <iterator>

namespace {
// One section of a number mask, read once: "(#,##0.00)" is "(", grouped, at least one digit, 2 decimals, ")".
struct NumberMask {
    QString prefix;
    QString suffix;
    bool grouped = false;
    int leastDigits = 0;
    int decimals = 0;
    int leastDecimals = 0;
};

bool isDigitMark(QChar mark) { return mark == u'0' || mark == u'#' || mark == u',' || mark == u'.'; }

void readMark(NumberMask& mask, QChar mark, bool& afterPoint) {
    if (mark == u'.') afterPoint = true;
    if (mark == u',') mask.grouped = true;
    if (mark == u'0') (afterPoint ? mask.leastDecimals : mask.leastDigits) += 1;
    if (afterPoint && mark != u'.') mask.decimals += 1;
}

NumberMask readMask(const QString& section) {
    NumberMask mask;
    bool afterPoint = false;
    bool started = false;
    for (const QChar mark : section) {
        if (!isDigitMark(mark)) {
            (started ? mask.suffix : mask.prefix) += mark;
            continue;
        }
        started = true;
        readMark(mask, mark, afterPoint);
    }
    return mask;
}

quint64 powerOfTen(int exponent) {
    quint64 power = 1;
    while (exponent-- > 0) power *= 10;
    return power;
}

quint64 magnitude(qint64 count) {
    return count < 0 ? 0 - static_cast<quint64>(count) : static_cast<quint64>(count);
}

// The ten-thousandths as a count of the mask's last decimal, halves away from zero.
quint64 roundedTo(quint64 tenThousandths, int decimals) {
    if (decimals >= 4) return tenThousandths * powerOfTen(decimals - 4);
    const quint64 unit = powerOfTen(4 - decimals);
    return tenThousandths / unit + (tenThousandths % unit >= unit / 2 ? 1 : 0);
}

// The digits of the whole part, with commas between the thousands where the mask groups.
void appendWhole(QString& text, quint64 whole, const NumberMask& mask) {
    constexpr int room = 64;
    QChar digits[room];
    int at = room;
    for (int count = 0; whole > 0 || count < mask.leastDigits; ++count, whole /= 10) {
        if (mask.grouped && whole > 0 && count > 0 && count % 3 == 0) digits[--at] = u',';
        digits[--at] = QChar(u'0' + static_cast<char16_t>(whole % 10));
    }
    text.append(digits + at, room - at);
}

void appendDecimals(QString& text, quint64 fraction, const NumberMask& mask) {
    int shown = mask.decimals;
    for (; shown > mask.leastDecimals && fraction % 10 == 0; fraction /= 10) --shown;
    if (shown == 0) return;
    text += u'.';
    for (quint64 unit = powerOfTen(shown - 1); unit > 0; unit /= 10)
        text += QChar(u'0' + static_cast<char16_t>(fraction / unit % 10));
}

QString applied(quint64 rounded, const NumberMask& mask) {
    const quint64 unit = powerOfTen(mask.decimals);
    QString text;
    text.reserve(32);
    text += mask.prefix;
    appendWhole(text, rounded / unit, mask);
    appendDecimals(text, rounded % unit, mask);
    return text += mask.suffix;
}

// The sections of a mask, read once.
const QList<NumberMask>& sectionsOf(const char* numberMask) {
    static thread_local QHash<QByteArray, QList<NumberMask>> known;
    const auto found = known.constFind(QByteArray::fromRawData(numberMask, qstrlen(numberMask)));
    if (found != known.constEnd()) return *found;
    QList<NumberMask>& sections = known[numberMask];
    for (const QString& section : QString::fromLatin1(numberMask).split(u';')) sections += readMask(section);
    return sections;
}

// The mask of nearly every date, written without a locale: lists and reports have many of them.
bool isUsual(const QDate& date, const char* dateMask) {
    return std::strcmp(dateMask, mask::date) == 0 && date.year() > 0 && date.year() < 10'000;
}

QString usualDate(const QDate& date) {
    const auto digit = [](int number) { return QChar(u'0' + number % 10); };
    const int month = date.month(), day = date.day(), year = date.year();
    const QChar text[] = {digit(month / 10),  digit(month),      u'/',
                          digit(day / 10),    digit(day),        u'/',
                          digit(year / 1000), digit(year / 100), digit(year / 10),
                          digit(year)};
    return QString(text, std::size(text));
}

// The mask as Qt reads it: months are capitals, minutes stand behind the hours.
QString qtDateMask(const char* dateMask) {
    return QString::fromLatin1(dateMask).replace(u'm', u'M').replace("hh:MM", "hh:mm");
}
}  // namespace

QString formatNumber(Currency value, const char* numberMask) {
    const QList<NumberMask>& sections = sectionsOf(numberMask);
    const NumberMask& positive = sections.first();
    const quint64 count = magnitude(value.tenThousandths());
    // What rounds to nothing has no sign.
    const bool negative = value.isNegative() && roundedTo(count, positive.decimals) != 0;
    if (negative && sections.size() > 1) {
        const NumberMask& mask = sections[1];
        return applied(roundedTo(count, mask.decimals), mask);
    }
    const QString text = applied(roundedTo(count, positive.decimals), positive);
    return negative ? u'-' + text : text;
}

QString formatCount(qint64 value) {
    QString text(value < 0 ? "-" : "");
    appendWhole(text, magnitude(value), sectionsOf(mask::count).first());
    return text;
}

QString formatDate(const QDate& date, const char* dateMask) {
    if (!date.isValid()) return {};
    return isUsual(date, dateMask) ? usualDate(date) : QLocale::c().toString(date, qtDateMask(dateMask));
}

QString formatDateTime(const QDateTime& moment, const char* dateMask) {
    return moment.isValid() ? QLocale::c().toString(moment, qtDateMask(dateMask)) : QString();
}
