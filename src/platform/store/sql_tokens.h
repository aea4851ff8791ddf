#pragma once
#include <QList>
#include <QStringView>

// A piece of a statement. Quoted texts and comments are one piece each.
struct Token {
    enum Kind { Word, Name, Literal, Space, Sign };  // Name: a quoted column or table
    Kind kind;
    QStringView text;

    bool is(const char* word) const {
        return kind == Word && text.compare(QLatin1StringView(word), Qt::CaseInsensitive) == 0;
    }
    bool isSign(char16_t sign) const { return kind == Sign && text.front() == sign; }
    bool isName() const { return kind == Word || kind == Name; }
};

// All of the statement, in order. The pieces look into the text.
QList<Token> tokensOf(QStringView statement);

// Follows an UPDATE through its SET list, to know where a column to be written stands.
class SetList {
  public:
    bool expectsTarget() const { return open_ && target_; }
    void follow(const Token& token);

  private:
    bool open_ = false;
    bool target_ = false;
    int depth_ = 0;
};
