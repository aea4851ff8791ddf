#include "platform/store/dialect.h"

#include <QStringView>

namespace {
struct Token {
    enum Kind { Word, Name, Literal, Space, Sign };  // Name: a quoted column or table
    Kind kind;
    QStringView text;

    bool is(const char* word) const {
        return kind == Word && text.compare(QLatin1StringView(word), Qt::CaseInsensitive) == 0;
    }
    bool isSign(char16_t sign) const { return kind == Sign && text.front() == sign; }
};

bool isWordPart(QChar character) {
    return character.isLetterOrNumber() || character == u'_' || character == u'$' || character.isSurrogate();
}

qsizetype endOfQuoted(QStringView text, qsizetype start, QChar close) {
    for (qsizetype at = start + 1; at < text.size(); ++at) {
        if (text[at] != close) continue;
        if (at + 1 < text.size() && text[at + 1] == close && close != u']')
            ++at;  // a doubled quote stands for itself
        else
            return at + 1;
    }
    return text.size();
}

qsizetype endOfComment(QStringView text, qsizetype start) {
    const bool line = text[start] == u'-';
    const QStringView close = line ? QStringView(u"\n") : QStringView(u"*/");
    const qsizetype found = text.indexOf(close, start + 2);
    return found < 0 ? text.size() : found + close.size();
}

template <class Belongs>
qsizetype endOfRun(QStringView text, qsizetype start, Belongs belongs) {
    while (start < text.size() && belongs(text[start])) ++start;
    return start;
}

bool startsComment(QStringView rest) { return rest.startsWith(u"--") || rest.startsWith(u"/*"); }

Token tokenAt(QStringView text, qsizetype start) {
    const QChar first = text[start];
    const auto cut = [&](Token::Kind kind, qsizetype end) {
        return Token{kind, text.mid(start, end - start)};
    };
    if (first == u'\'') return cut(Token::Literal, endOfQuoted(text, start, u'\''));
    if (first == u'"' || first == u'`') return cut(Token::Name, endOfQuoted(text, start, first));
    if (first == u'[') return cut(Token::Name, endOfQuoted(text, start, u']'));
    if (startsComment(text.mid(start))) return cut(Token::Space, endOfComment(text, start));
    if (first.isSpace()) return cut(Token::Space, endOfRun(text, start, [](QChar c) { return c.isSpace(); }));
    if (isWordPart(first)) return cut(Token::Word, endOfRun(text, start, isWordPart));
    return cut(Token::Sign, start + 1);
}

QList<Token> tokensOf(QStringView text) {
    QList<Token> tokens;
    for (qsizetype at = 0; at < text.size(); at += tokens.last().text.size()) tokens += tokenAt(text, at);
    return tokens;
}

// Follows an UPDATE through its SET list, to know where a column to be written stands.
class SetList {
  public:
    bool expectsTarget() const { return open_ && target_; }
    void follow(const Token& token) {
        if (token.kind == Token::Space) return;
        if (token.isSign(u'(')) ++depth_;
        if (token.isSign(u')')) --depth_;
        if (token.is("SET")) {
            open_ = target_ = true;
        } else if (depth_ == 0 && (token.is("WHERE") || token.is("FROM"))) {
            open_ = false;
        } else {
            target_ = depth_ == 0 && token.isSign(u',');
        }
    }

  private:
    bool open_ = false;
    bool target_ = false;
    int depth_ = 0;
};

bool isName(const Token& token) { return token.kind == Token::Word || token.kind == Token::Name; }

}  // namespace

QString engineStatement(const QString& statement) {
    const QList<Token> tokens = tokensOf(statement);
    QString result;
    SetList setList;
    for (qsizetype at = 0; at < tokens.size(); ++at) {
        const Token& token = tokens[at];
        const bool qualifies = at + 1 < tokens.size() && tokens[at + 1].isSign(u'.');
        if (setList.expectsTarget() && isName(token) && qualifies) {
            ++at;  // the table and its point
            continue;
        }
        setList.follow(token);
        const bool qualified = at > 0 && tokens[at - 1].isSign(u'.');
        if (token.is("True") && !qualified)
            result += u"-1";
        else if (token.is("False") && !qualified)
            result += u'0';
        else
            result += token.text;
    }
    return result;
}
