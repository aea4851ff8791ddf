#include "foundation/encryption.h"

namespace {
// The characters of the codes 128 to 159; 0 where the code page has none.
constexpr char16_t upperCodes[] = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                   0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                   0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                   0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};
constexpr int firstUpper = 128;
constexpr int endUpper = 160;
constexpr int greatestCode = 255;

int codeOf(QChar character) {
    const char16_t unicode = character.unicode();
    for (int code = firstUpper; code < endUpper; ++code)
        if (upperCodes[code - firstUpper] == unicode) return code;
    return unicode <= greatestCode ? unicode : u'?';
}

QChar characterOf(int code) {
    if (code < firstUpper || code >= endUpper) return QChar(code);
    const char16_t unicode = upperCodes[code - firstUpper];
    return QChar(unicode != 0 ? unicode : static_cast<char16_t>(code));
}

// A code that no character has drops out.
void append(QString& text, int code) {
    if (code >= 0 && code <= greatestCode) text += characterOf(code);
}
}  // namespace

int EncryptionKey(const QString& text) {
    int greatest = 0;
    for (const QChar character : text) greatest = std::max(greatest, codeOf(character));
    return 127 - greatest;
}

QString EncryptText(const QString& text) {
    const int key = EncryptionKey(text);
    QString scrambled;
    for (const QChar character : text) {
        const int code = codeOf(character) + key;
        if (code >= greatestCode) return {};
        append(scrambled, code);
    }
    append(scrambled, key + 2);
    return scrambled;
}

QString DecryptText(const QString& text) {
    if (text.isEmpty()) return {};
    const int key = codeOf(text.back()) - 2;
    QString plain;
    for (const QChar character : text.chopped(1)) {
        const int code = codeOf(character) - key;
        if (code < 0) return {};
        append(plain, code);
    }
    return plain;
}
