#include "platform/store/server_dialect.h"

#include "platform/store/sql_tokens.h"

#include <QRegularExpression>
#include <QStringList>

#include <optional>

namespace {
// A text that compares as in the file stands on citext, whose letters fold by the database's "C" locale.
struct TypeWords {
    const char* house;
    const char* server;
};
constexpr TypeWords types[] = {{"TEXT COLLATE NOCASE", "citext"},
                               {"CURRENCY_INTEGER", "currency_integer"},
                               {"BOOLEAN", "flag"},
                               {"DATE", "day"},
                               {"INTEGER", "bigint"},
                               {"BLOB", "bytea"},
                               {"TEXT", "text"}};

// Follows the lists to sort by: they end where they were opened, or with the words that come after them.
class SortLists {
  public:
    // What has to stand before this token.
    QString before(const Token& token) {
        const bool closes = token.isSign(u')');
        QString order;
        if (isOpen() && depth_ == lists_.last() &&
            (closes || token.isSign(u',') || token.isSign(u';') || endsList(token)))
            order = descends_ ? " NULLS LAST " : " NULLS FIRST ";
        if (!order.isEmpty() && !token.isSign(u',')) lists_.removeLast();
        if (!order.isEmpty()) descends_ = false;
        return order;
    }
    void follow(const Token& token) {
        if (token.kind == Token::Space) return;
        if (token.isSign(u'(')) ++depth_;
        if (token.isSign(u')')) --depth_;
        if (token.is("BY") && afterOrder_) {
            lists_ += depth_;
            descends_ = false;
        }
        if (token.is("DESC")) descends_ = true;
        afterOrder_ = token.is("ORDER");
    }
    QString atEnd() const { return !isOpen() ? QString() : descends_ ? " NULLS LAST" : " NULLS FIRST"; }

  private:
    bool isOpen() const { return !lists_.isEmpty(); }
    static bool endsList(const Token& token) {
        return token.is("LIMIT") || token.is("OFFSET") || token.is("UNION") || token.is("RETURNING");
    }
    QList<int> lists_;  // the depths at which they stand
    int depth_ = 0;
    bool afterOrder_ = false;
    bool descends_ = false;
};

class Translation {
  public:
    explicit Translation(const QString& statement) : tokens_(tokensOf(statement)) {}

    QString text() {
        for (qsizetype at = 0; at < tokens_.size(); ++at) {
            if (leavesOut(at)) {
                ++at;  // the table and its point
                continue;
            }
            const Token& token = tokens_[at];
            setList_.follow(token);
            result_ += sorts_.before(token);
            sorts_.follow(token);
            result_ += wordOf(at);
        }
        return result_ + sorts_.atEnd();
    }

  private:
    bool isQualified(qsizetype at) const { return at > 0 && tokens_[at - 1].isSign(u'.'); }
    bool nextIs(qsizetype at, char16_t sign) const {
        return at + 1 < tokens_.size() && tokens_[at + 1].isSign(sign);
    }
    bool leavesOut(qsizetype at) const {
        return setList_.expectsTarget() && tokens_[at].isName() && nextIs(at, u'.');
    }
    QString wordOf(qsizetype at) {
        const Token& token = tokens_[at];
        if (token.isSign(u'?')) return u'$' + QString::number(++values_);
        if (token.kind == Token::Name && token.text.front() != u'"')
            return u'"' + token.text.mid(1, token.text.size() - 2).toString().toLower() + u'"';
        if (token.kind != Token::Word || isQualified(at)) return token.text.toString();
        if (token.is("True")) return "-1";
        if (token.is("False")) return "0";
        if (token.is("LIKE")) return "::text ~~@";
        if (token.is("SUM") && nextIs(at, u'(')) return "total_of";
        return token.text.toString();
    }

    QList<Token> tokens_;
    QString result_;
    SetList setList_;
    SortLists sorts_;
    int values_ = 0;
};

QString plain(const QString& statement) { return Translation(statement).text(); }

// ---- tables

// "a INTEGER, PRIMARY KEY (b, c)" at its outer commas.
QStringList parts(const QString& list) {
    QStringList found(QString{});
    int depth = 0;
    for (const QChar letter : list) {
        if (letter == u'(') ++depth;
        if (letter == u')') --depth;
        if (letter == u',' && depth == 0)
            found += QString();
        else
            found.last() += letter;
    }
    for (QString& part : found) part = part.trimmed();
    return found;
}

QString nullsFirst(const QString& columns) {
    QStringList sorted;
    for (const QString& column : parts(columns)) sorted += column + " NULLS FIRST";
    return sorted.join(", ");
}

QString uniqueIndex(const QString& table, const QString& columns) {
    return QString("CREATE UNIQUE INDEX %1_%2_key ON %1 (%3)")
        .arg(table, QString(columns).remove(", "), nullsFirst(columns));
}

bool takeWords(QString& definition, const char* words) {
    const qsizetype at = definition.indexOf(QLatin1StringView(words), 0, Qt::CaseInsensitive);
    if (at >= 0) definition.remove(at, static_cast<qsizetype>(qstrlen(words)));
    return at >= 0;
}

QString serverType(QString& definition) {
    for (const auto& [house, server] : types)
        if (takeWords(definition, house)) return server;
    return "citext";
}

QString createTable(const QString& name, const QString& columns) {
    QStringList definitions;
    QStringList statements;
    for (QString column : parts(columns)) {
        if (takeWords(column, "PRIMARY KEY (")) {
            statements += uniqueIndex(name, column.chopped(1));
            continue;
        }
        const QString columnName = column.section(u' ', 0, 0);
        QString rest = column.mid(columnName.size());
        const bool key = takeWords(rest, "PRIMARY KEY");
        const bool unique = takeWords(rest, "UNIQUE") || key;
        const QString type = serverType(rest);
        const bool numbered = key && type == "bigint";
        if (unique) statements += uniqueIndex(name, columnName);
        definitions += QString("%1 %2%3%4")
                           .arg(columnName, type, rest.simplified().prepend(u' '),
                                numbered ? " GENERATED BY DEFAULT AS IDENTITY" : "");
    }
    statements.prepend(QString("CREATE TABLE %1 (%2)").arg(name, definitions.join(", ")));
    return statements.join("; ");
}

// A trigger of the house runs one statement for each row.
QString createTrigger(const QRegularExpressionMatch& trigger) {
    const QString condition = trigger.captured(4);
    return QString(
               "CREATE FUNCTION run_%1() RETURNS trigger LANGUAGE plpgsql AS "
               "$body$ BEGIN %2 RETURN NULL; END $body$; "
               "CREATE TRIGGER %1 AFTER %3 ON %4 FOR EACH ROW %5 EXECUTE FUNCTION run_%1()")
        .arg(trigger.captured(1), plain(trigger.captured(5)), trigger.captured(2), trigger.captured(3),
             condition.isEmpty() ? QString() : "WHEN (" + plain(condition) + ')');
}

std::optional<QString> aboutTables(const QString& statement) {
    static const QRegularExpression table("^CREATE TABLE \"?(\\w+)\"? \\((.*)\\)( WITHOUT ROWID)?$");
    static const QRegularExpression index("^(CREATE (?:UNIQUE )?INDEX \\w+ ON \\w+) \\((.*)\\)$");
    static const QRegularExpression trigger(
        "^CREATE TRIGGER (\\w+) AFTER (.+?) ON (\\w+) (?:WHEN (.+?) )?BEGIN (.+;) END$");
    if (!statement.startsWith("CREATE ")) return {};
    if (const auto found = table.match(statement); found.hasMatch())
        return createTable(found.captured(1), found.captured(2));
    if (const auto found = index.match(statement); found.hasMatch())
        return QString("%1 (%2)").arg(found.captured(1), nullsFirst(found.captured(2)));
    if (const auto found = trigger.match(statement); found.hasMatch()) return createTrigger(found);
    return {};
}
}  // namespace

QString serverStatement(const QString& statement) {
    if (const auto found = aboutTables(statement)) return *found;
    return plain(statement);
}

QStringList serverDefinitions(const QString& statement) {
    static const QRegularExpression table("^CREATE TABLE (\\w+) \\((.*?)\\)(?=; CREATE |$)");
    static const QRegularExpression other("CREATE (?:UNIQUE )?(INDEX|TRIGGER) (\\w+)");
    const QString translated = serverStatement(statement);
    QStringList definitions;
    if (const auto found = table.match(translated); found.hasMatch())
        for (const QString& column : parts(found.captured(2)))
            definitions += "column " + found.captured(1) + u'.' + column.section(u' ', 0, 1);
    for (const auto& found : other.globalMatch(translated))
        definitions += found.captured(1) + u' ' + found.captured(2);
    for (QString& definition : definitions) definition = definition.toLower();
    return definitions;
}

// The sum is that of the file: exact, and beyond the range it fails. The operator takes a backslash by the
// letter.
QStringList serverGround() {
    return {"CREATE EXTENSION IF NOT EXISTS citext",
            "CREATE DOMAIN currency_integer AS bigint",
            "CREATE DOMAIN flag AS smallint",
            "CREATE DOMAIN day AS text",
            "CREATE AGGREGATE total_of(bigint) (SFUNC = int8pl, STYPE = bigint, COMBINEFUNC = int8pl, "
            "PARALLEL = SAFE)",
            "CREATE FUNCTION fits_like(text, text) RETURNS boolean LANGUAGE sql IMMUTABLE PARALLEL SAFE AS "
            "$$ SELECT $1 COLLATE \"und-x-icu\" ILIKE $2 ESCAPE '' $$",
            "CREATE OPERATOR ~~@ (LEFTARG = text, RIGHTARG = text, FUNCTION = fits_like)",
            "CREATE TABLE StoreVersion (Application bigint NOT NULL, Version bigint NOT NULL)"};
}

QString houseType(const QString& serverType) {
    if (serverType == "citext" || serverType == "text") return "TEXT";
    for (const auto& [house, server] : types)
        if (serverType == QLatin1StringView(server)) return house;
    return serverType.toUpper();
}
