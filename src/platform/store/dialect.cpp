#include "platform/store/dialect.h"

#include "platform/store/sql_tokens.h"

QString engineStatement(const QString& statement) {
    const QList<Token> tokens = tokensOf(statement);
    QString result;
    SetList setList;
    for (qsizetype at = 0; at < tokens.size(); ++at) {
        const Token& token = tokens[at];
        const bool qualifies = at + 1 < tokens.size() && tokens[at + 1].isSign(u'.');
        if (setList.expectsTarget() && token.isName() && qualifies) {
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
