#include "foundation/encryption.h"
#include "platform/parsing.h"

#include <gtest/gtest.h>

static QString fromCodes(const QList<int>& codes) {
    QString text;
    for (const int code : codes) text += QChar(code);
    return text;
}

TEST(Encryption, ScramblesAsTheStoredPasswordsWere) {
    const struct {
        const char* name;
        QString text;
        QString scrambled;
    } table[] = {{"letters", "abc", fromCodes({125, 126, 127, 30})},
                 {"one letter", "A", fromCodes({127, 64})},
                 {"empty", "", fromCodes({129})},
                 {"greatest code 127", fromCodes({127}), fromCodes({127, 2})},
                 {"greatest code a: ends in a blank", "a", fromCodes({127, 32})},
                 {"a sum below 0 drops out", fromCodes({1, 200}), fromCodes({127})},
                 {"the code page's own characters", "€", fromCodes({127, 1})},
                 {"a character outside the code page is a question mark", "Ж", fromCodes({127, 66})}};
    for (const auto& row : table) EXPECT_EQ(EncryptText(row.text), row.scrambled) << row.name;
}

TEST(Encryption, ReadsBackEveryTextOfPlainCodes) {
    for (int greatest = 1; greatest <= 127; ++greatest)
        for (int other = 1; other <= greatest; ++other) {
            const QString text = fromCodes({other, greatest, other});
            ASSERT_EQ(DecryptText(EncryptText(text)), text) << greatest << ' ' << other;
        }
    EXPECT_EQ(DecryptText(EncryptText("")), "");
    EXPECT_EQ(DecryptText(""), "");
    EXPECT_EQ(DecryptText(fromCodes({10, 100})), "") << "a code below 0 ends it at once";
}

TEST(Encryption, OnlyABlankAtTheEndIsLostToTheTrim) {
    for (char last = 'b'; last <= 'z'; ++last) {
        const QString text = QString("a") + QLatin1Char(last);
        EXPECT_EQ(DecryptText(trim(EncryptText(text))), text) << last;
    }
    EXPECT_NE(DecryptText(trim(EncryptText("a"))), "a");
}
