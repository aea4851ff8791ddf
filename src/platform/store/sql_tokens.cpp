#include "platform/store/sql_tokens.h"

namespace {
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
}  // namespace

QList<Token> tokensOf(QStringView text) {
    QList<Token> tokens;
    for (qsizetype at = 0; at < text.size(); at += tokens.last().text.size()) tokens += tokenAt(text, at);
    return tokens;
}

void SetList::follow(const Token& token) {
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
