#include "platform/store/server_engine.h"

#include "platform/store/busy_wait.h"
#include "platform/store/server_dialect.h"
#include "platform/store/sql_tokens.h"

#include <QRegularExpression>

#include <libpq-fe.h>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>
#include <limits>

namespace {
constexpr int firstFetch = 500, laterFetch = 4000;  // rows
// The types of the server's own that are not read as texts.
enum : unsigned {
    boolType = 16,
    bytesType = 17,
    bigType = 20,
    smallType = 21,
    intType = 23,
    realType = 701,
    numericType = 1700
};

QVariant numberOf(const char* text) {
    bool whole = false;
    const QByteArray digits(text);
    const qlonglong number = digits.toLongLong(&whole);
    if (whole) return number;
    if (!digits.contains('.')) throw StoreError(StoreError::general, "integer overflow");
    return digits.toDouble();
}

QVariant bytesOf(const char* text) {
    size_t length = 0;
    unsigned char* const bytes = PQunescapeBytea(reinterpret_cast<const unsigned char*>(text), &length);
    const QByteArray value(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(length));
    PQfreemem(bytes);
    return value;
}

QVariant valueOf(const PGresult* result, int row, int column, unsigned type) {
    if (PQgetisnull(result, row, column)) return QVariant(QMetaType::fromType<QString>());
    const char* const text = PQgetvalue(result, row, column);
    switch (type) {
        case boolType:
            return qlonglong{*text == 't'};
        case bigType:
        case smallType:
        case intType:
        case numericType:
            return numberOf(text);
        case realType:
            return QByteArray(text).toDouble();
        case bytesType:
            return bytesOf(text);
        default:
            return QString::fromUtf8(text, PQgetlength(result, row, column));
    }
}

std::vector<QVariantList> rowsOf(const PGresult* result, const std::vector<unsigned>& types) {
    const int count = PQntuples(result);
    std::vector<QVariantList> rows(static_cast<size_t>(count));
    for (int row = 0; row < count; ++row) {
        QVariantList& values = rows[static_cast<size_t>(row)];
        values.reserve(static_cast<qsizetype>(types.size()));
        for (size_t column = 0; column < types.size(); ++column)
            values.emplaceBack(valueOf(result, row, static_cast<int>(column), types[column]));
    }
    return rows;
}

qsizetype marksOf(const QString& text) {
    qsizetype marks = 0;
    for (const Token& token : tokensOf(text)) marks += token.isSign(u'?');
    return marks;
}

bool startsWith(const QString& text, std::initializer_list<const char*> words) {
    const QStringView first = QStringView(text).trimmed();
    for (const char* word : words)
        if (first.startsWith(QLatin1StringView(word), Qt::CaseInsensitive)) return true;
    return false;
}

// "INSERT INTO t", "UPDATE t", "DELETE FROM t"
WrittenRows rowsWrittenBy(const QString& text) {
    static const QRegularExpression write("^\\s*(INSERT INTO|UPDATE|DELETE FROM)\\s+(\\w+)",
                                          QRegularExpression::CaseInsensitiveOption);
    const auto found = write.match(text);
    if (!found.hasMatch()) return {};
    const QChar first = found.captured(1).front().toUpper();
    return {found.captured(2), first == u'I'   ? RowWatch::Added
                               : first == u'D' ? RowWatch::Deleted
                                               : RowWatch::Changed};
}

// A reading statement compares all of its values, a writing one those of its own WHERE.
qsizetype firstCompared(const QString& text, bool writes) {
    qsizetype marks = 0;
    int depth = 0;
    for (const Token& token : tokensOf(text)) {
        if (!writes || (depth == 0 && token.is("WHERE"))) return marks;
        if (token.isSign(u'(')) ++depth;
        if (token.isSign(u')')) --depth;
        marks += token.isSign(u'?');
    }
    return marks;
}

bool isWholeType(unsigned type) { return type == bigType || type == intType || type == smallType; }

// Texts compare with a number column as they do in a file: "7.0" is a number, and one that is none is beyond
// all numbers.
QVariant asNumber(const QString& text) {
    constexpr double bound = 9.0e18;
    bool isNumber = false;
    const double number = text.trimmed().toDouble(&isNumber);
    if (isNumber && number <= -bound) return std::numeric_limits<qlonglong>::min();
    const bool isWhole = isNumber && number < bound && std::floor(number) == number;
    return isWhole ? static_cast<qlonglong>(number) : std::numeric_limits<qlonglong>::max();
}

bool isWholeNumber(const QString& text) {
    bool isNumber = false;
    text.trimmed().toLongLong(&isNumber);
    return isNumber;
}

QByteArray savepoint(int level) { return "unit" + QByteArray::number(level); }

// The one lock of the books: whoever writes holds it.
constexpr const char* beginStatements = "BEGIN; SELECT pg_try_advisory_xact_lock(1517842977)";
constexpr const char* guard = "SAVEPOINT statement";
constexpr const char* keepGuarded = "RELEASE statement";
constexpr const char* undoGuarded = "ROLLBACK TO statement; RELEASE statement";
}  // namespace

// The rows of a reader within a unit come in pieces, through a cursor; others at once.
class ServerRows : public BulkRows {
  public:
    ServerRows(ServerEngine& engine, ServerResult rows, QByteArray cursor)
        : engine_(engine), rows_(std::move(rows)), cursor_(std::move(cursor)) {}

    bool next() override {
        if (++row_ < PQntuples(rows_.get())) return true;
        if (cursor_.isEmpty() || PQntuples(rows_.get()) < asked_) return false;
        asked_ = laterFetch;
        rows_ = std::move(engine_.guarded({{ServerCommand::Plain, fetch(cursor_, asked_), {}}}).front());
        row_ = 0;
        return PQntuples(rows_.get()) > 0;
    }
    qint64 integer(int column) const override {
        const QByteArrayView digits = bytes(column);
        qint64 number = 0;
        std::from_chars(digits.begin(), digits.end(), number);
        return number;
    }
    bool isNull(int column) const override { return PQgetisnull(rows_.get(), row_, column) != 0; }
    QByteArrayView bytes(int column) const override {
        return {PQgetvalue(rows_.get(), row_, column), PQgetlength(rows_.get(), row_, column)};
    }

    static QByteArray fetch(const QByteArray& cursor, int rows = firstFetch) {
        return "FETCH " + QByteArray::number(rows) + " FROM " + cursor;
    }

  private:
    ServerEngine& engine_;
    ServerResult rows_;
    QByteArray cursor_;
    int asked_ = firstFetch;
    int row_ = -1;
};

ServerEngine::ServerEngine(const QString& uri, const QString& password) : link_(uri, password) {}

ServerStatement& ServerEngine::known(const QString& text) {
    auto& statement = statements_[text];
    if (statement) return *statement;
    statement = std::make_shared<ServerStatement>();
    statement->text = serverStatement(text).toUtf8();
    statement->values = marksOf(text);
    statement->changesTables = startsWith(text, {"CREATE", "DROP", "ALTER"});
    statement->isPlannedAnew = QString::fromUtf8(statement->text).contains("LIMIT $");
    statement->writes = statement->changesTables || startsWith(text, {"INSERT", "UPDATE", "DELETE"});
    statement->compared = firstCompared(text, statement->writes);
    statement->rows = rowsWrittenBy(text);
    return *statement;
}

// Parses what was never parsed, along with its first use. A statement whose limit is bound is planned for
// each use: a plan for any limit would sort the whole table.
void ServerEngine::add(std::vector<ServerCommand>& commands, ServerStatement& statement,
                       const QVariantList& values) {
    if (statement.isPlannedAnew) {
        commands.push_back({ServerCommand::Plain, statement.text, {}, values});
        return;
    }
    if (statement.name.isEmpty()) {
        statement.name = "s" + QByteArray::number(++parsed_);
        commands.push_back({ServerCommand::Parse, statement.text, statement.name});
    }
    commands.push_back({ServerCommand::Prepared, statement.name, {}, values});
}

// Leaves these out, from this one on; what was not sent is not parsed either.
void ServerEngine::drop(std::vector<ServerCommand>& commands, size_t from) {
    for (size_t at = from; at < commands.size(); ++at)
        if (commands[at].kind == ServerCommand::Parse)
            for (const auto& statement : std::as_const(statements_))
                if (statement->name == commands[at].name) statement->name.clear();
    commands.resize(std::min(from, commands.size()));
}

// Behind what was put off: where that fails, the server takes nothing of the unit any more.
std::vector<ServerResult> ServerEngine::sendWithLater(std::vector<ServerCommand> commands) {
    const auto before = static_cast<std::ptrdiff_t>(later_.size());
    commands.insert(commands.begin(), std::make_move_iterator(later_.begin()),
                    std::make_move_iterator(later_.end()));
    later_.clear();
    try {
        std::vector<ServerResult> answers = link_.send(commands);
        answers.erase(answers.begin(), answers.begin() + before);
        return answers;
    } catch (const StoreError&) {
        drop(commands, link_.carriedOut());
        throw;
    }
}

void ServerEngine::sendLater() {
    if (!later_.empty()) sendWithLater({});
}

// A statement of a unit stands behind a savepoint: where it fails, the unit goes on without it.
std::vector<ServerResult> ServerEngine::guarded(std::vector<ServerCommand> commands) {
    if (!inUnit_) return sendWithLater(std::move(commands));
    const size_t before = later_.size();
    commands.insert(commands.begin(), {ServerCommand::Plain, guard, {}});
    commands.push_back({ServerCommand::Plain, keepGuarded, {}});
    try {
        std::vector<ServerResult> answers = sendWithLater(std::move(commands));
        answers.erase(answers.begin());
        answers.pop_back();
        return answers;
    } catch (const StoreError&) {
        if (!link_.isLost() && link_.carriedOut() > before) link_.simple(undoGuarded);
        throw;
    }
}

ServerResult ServerEngine::answerOnce(ServerStatement& statement, const QVariantList& values) {
    std::vector<ServerCommand> commands;
    add(commands, statement, values);
    return std::move(guarded(std::move(commands)).back());
}

// The server refuses a text where a number stands, and a number too long for one: whoever looks for it finds
// nothing.
QVariantList ServerEngine::comparable(const ServerStatement& statement, QVariantList values) {
    const std::vector<ServerResult> answers =
        guarded({{ServerCommand::Parse, statement.text, {}}, {ServerCommand::Describe, {}, {}}});
    for (qsizetype at = statement.compared; at < values.size(); ++at) {
        const QVariant stored = storedValue(values[at]);
        if (stored.isNull() || stored.metaType() != QMetaType::fromType<QString>()) continue;
        if (!isWholeType(PQparamtype(answers.back().get(), static_cast<int>(at)))) continue;
        if (!isWholeNumber(stored.toString())) values[at] = asNumber(stored.toString());
    }
    return values;
}

template <class Ask>
auto ServerEngine::asked(const ServerStatement& statement, const QVariantList& values, const Ask& ask) {
    try {
        return ask(values);
    } catch (const StoreError&) {
        if (link_.isLost() || !link_.refusedValue()) throw;
        const QVariantList others = comparable(statement, values);
        if (others == values) throw;
        return ask(others);
    }
}

// What was in the midst of it is undone by the server; outside of a unit nothing was.
void ServerEngine::connectAnew() {
    for (const auto& statement : std::as_const(statements_)) statement->name.clear();
    link_.reconnect();
}

ServerResult ServerEngine::answer(ServerStatement& statement, const QVariantList& values) {
    requireValues(statement.values, values);
    if (statement.changesTables) return changeTables(statement);
    const auto ask = [&](const QVariantList& given) { return answerOnce(statement, given); };
    if (!inUnit_ && link_.isLost()) connectAnew();
    try {
        return asked(statement, values, ask);
    } catch (const StoreError&) {
        if (inUnit_ || !link_.isLost()) throw;
    }
    connectAnew();
    return asked(statement, values, ask);
}

ServerResult ServerEngine::changeTables(const ServerStatement& statement) {
    catalogue_.clear();
    forgetTables();
    sendLater();
    link_.simple(guard);
    try {
        ServerResult result = link_.simple(statement.text);
        link_.simple(keepGuarded);
        return result;
    } catch (const StoreError&) {
        if (!link_.isLost()) link_.simple(undoGuarded);
        throw;
    }
}

const std::vector<ServerEngine::Table>& ServerEngine::catalogue() {
    if (!catalogue_.empty()) return catalogue_;
    const std::vector<ServerResult> answers = guarded(
        {{ServerCommand::Plain,
          "SELECT c.oid, c.relname, a.attnum, a.attname, format_type(a.atttypid, NULL), "
          "a.attidentity <> '' FROM pg_class c JOIN pg_attribute a ON a.attrelid = c.oid "
          "WHERE c.relnamespace = current_schema()::regnamespace AND c.relkind = 'r' AND a.attnum > 0 "
          "AND NOT a.attisdropped ORDER BY c.relname, a.attnum",
          {}}});
    const PGresult* const found = answers.front().get();
    const auto text = [&](int row, int column) { return QString::fromUtf8(PQgetvalue(found, row, column)); };
    for (int row = 0; row < PQntuples(found); ++row) {
        if (const unsigned id = text(row, 0).toUInt(); catalogue_.empty() || catalogue_.back().id != id)
            catalogue_.push_back({id, text(row, 1), {}, {}});
        catalogue_.back().columns += {text(row, 3), houseType(text(row, 4)), text(row, 5) == "t"};
        catalogue_.back().places += text(row, 2).toInt();
    }
    return catalogue_;
}

QStringList ServerEngine::tables() {
    QStringList names;
    for (const Table& table : catalogue())
        if (table.name != "storeversion") names += table.name;
    return names;
}

QStringList ServerEngine::definitions() {
    const std::vector<ServerResult> answers = guarded(
        {{ServerCommand::Plain,
          "WITH own AS (SELECT oid, relname, relkind FROM pg_class WHERE relnamespace = "
          "current_schema()::regnamespace AND relname <> 'storeversion') "
          "SELECT 'column ' || relname || '.' || attname || ' ' || format_type(atttypid, NULL) FROM own "
          "JOIN pg_attribute ON attrelid = own.oid WHERE relkind = 'r' AND attnum > 0 AND NOT attisdropped "
          "UNION ALL SELECT 'index ' || relname FROM own JOIN pg_index ON indexrelid = own.oid "
          "WHERE indisvalid "
          "UNION ALL SELECT 'trigger ' || tgname FROM own JOIN pg_trigger ON tgrelid = own.oid "
          "WHERE NOT tgisinternal AND tgenabled <> 'D'",
          {}}});
    QStringList found;
    for (int row = 0; row < PQntuples(answers.front().get()); ++row)
        found += QString::fromUtf8(PQgetvalue(answers.front().get(), row, 0));
    return found;
}

QList<TableColumn> ServerEngine::readColumns(const QString& name) {
    for (const Table& table : catalogue())
        if (table.name.compare(name, Qt::CaseInsensitive) == 0) return table.columns;
    return {};
}

ColumnKind ServerEngine::kindOf(unsigned id, int place) {
    if (id == 0) return ColumnKind::Unknown;
    for (const Table& table : catalogue()) {
        const qsizetype at = table.id == id ? table.places.indexOf(place) : -1;
        if (at >= 0) return declaredKind(table.columns[at].type);
    }
    return ColumnKind::Unknown;
}

void ServerEngine::learnColumns(ServerStatement& statement, const PGresult* result, const QString& text) {
    if (statement.columns) return;
    QStringList names;
    QList<ColumnKind> kinds;
    statement.columnCount = PQnfields(result);
    for (int column = 0; column < statement.columnCount; ++column) {
        names += QString::fromUtf8(PQfname(result, column));
        const ColumnKind declared = kindOf(PQftable(result, column), PQftablecol(result, column));
        kinds += declared == ColumnKind::Unknown ? computedKind(names.last(), text) : declared;
        statement.types.push_back(PQftype(result, column));
    }
    statement.columns = columnsOf(names, kinds);
}

static QString aheadKey(const Sql& sql) {
    QString key = sql.text;
    for (const QVariant& value : sql.values) key += QChar(0) + storedValue(value).toString();
    return key;
}

void ServerEngine::readAhead(const std::vector<Sql>& statements, ReadAhead::Until until) {
    forgetAhead();
    outlivesWrites_ = until == ReadAhead::End;
    std::vector<ServerCommand> commands;
    std::vector<size_t> places;
    for (const Sql& sql : statements) {
        ServerStatement& statement = known(sql.text);
        requireValues(statement.values, sql.values);
        add(commands, statement, sql.values);
        places.push_back(commands.size() - 1);
    }
    if (commands.empty()) return;
    try {
        std::vector<ServerResult> answers = guarded(std::move(commands));
        for (size_t at = 0; at < places.size(); ++at)
            ahead_[aheadKey(statements[at])] = std::move(answers[places[at]]);
    } catch (const StoreError&) {
        if (link_.isLost() || (inUnit_ && hasUndoneUnit())) throw;
    }
}

void ServerEngine::aheadIsStale() {
    if (!outlivesWrites_) ahead_.clear();
}

// None: it was not read ahead.
ServerResult ServerEngine::takeAhead(const Sql& sql) {
    const auto held = ahead_.empty() ? ahead_.end() : ahead_.find(aheadKey(sql));
    return held == ahead_.end() ? nullptr : std::move(ahead_.extract(held).mapped());
}

ReadRows ServerEngine::execute(const Sql& sql) {
    ServerStatement& statement = known(sql.text);
    ServerResult result = takeAhead(sql);
    if (!result) result = answer(statement, sql.values);
    learnColumns(statement, result.get(), sql.text);
    return {statement.columns, statement.columnCount, rowsOf(result.get(), statement.types)};
}

// A write to a table that a watch listens to brings the keys of its rows along.
ServerStatement& ServerEngine::heard(const QString& text) {
    ServerStatement& statement = known(text);
    const QString table = statement.rows.table;
    if (table.isEmpty() || !RowWatch::isHeard(this, table)) return statement;
    return known(text + " RETURNING " + table + u'.' + keyOf(table));
}

void ServerEngine::tell(const WrittenRows& rows, const PGresult* keys) const {
    for (int row = 0; row < PQntuples(keys); ++row)
        RowWatch::tell(this, rows.table, rows.change, QByteArrayView(PQgetvalue(keys, row, 0)).toLongLong());
}

// A write that stands alone is a unit of its own.
qint64 ServerEngine::run(const Sql& sql) {
    ServerStatement& statement = heard(sql.text);
    const bool alone = statement.writes && !inUnit_;
    aheadIsStale();
    requireValues(statement.values, sql.values);
    if (alone) begin(Turn::Any);
    try {
        if (statement.writes) tellStatement(sql.text);
        const ServerResult result = answer(statement, sql.values);
        if (PQnfields(result.get()) > 0) tell(statement.rows, result.get());
        if (alone) commit();
        return QByteArrayView(PQcmdTuples(result.get())).toLongLong();
    } catch (...) {
        if (alone) undo();
        throw;
    }
}

void ServerEngine::runLater(const Sql& sql) {
    constexpr size_t mostLater = 256;
    ServerStatement& statement = known(sql.text);
    if (!inUnit_ || RowWatch::isHeard(this, statement.rows.table)) return void(run(sql));
    requireValues(statement.values, sql.values);
    tellStatement(sql.text);
    aheadIsStale();
    add(later_, statement, sql.values);
    if (later_.size() >= mostLater) sendLater();
}

void ServerEngine::runMany(const QString& text, const std::vector<QVariantList>& rows) {
    ServerStatement& statement = known(text);
    if (RowWatch::isHeard(this, statement.rows.table)) return Engine::runMany(text, rows);
    for (const QVariantList& row : rows) {
        requireValues(statement.values, row);
        tellStatement(text);
    }
    aheadIsStale();
    std::vector<ServerCommand> commands;
    for (const QVariantList& row : rows) add(commands, statement, row);
    guarded(std::move(commands));
}

qint64 ServerEngine::insert(const Sql& sql, const QString& key) {
    const Sql returning(sql.text + " RETURNING " + key, sql.values);
    const bool alone = !inUnit_;
    aheadIsStale();
    if (alone) begin(Turn::Any);
    try {
        tellStatement(sql.text);
        const qint64 row = execute(returning).rows.at(0).at(0).toLongLong();
        RowWatch::tell(this, known(sql.text).rows.table, RowWatch::Added, row);
        if (alone) commit();
        return row;
    } catch (...) {
        if (alone) undo();
        throw;
    }
}

std::unique_ptr<BulkRows> ServerEngine::read(const Sql& sql) {
    ServerStatement& statement = known(sql.text);
    requireValues(statement.values, sql.values);
    if (ServerResult ahead = takeAhead(sql))
        return std::make_unique<ServerRows>(*this, std::move(ahead), QByteArray());
    if (!inUnit_) return std::make_unique<ServerRows>(*this, answer(statement, sql.values), QByteArray());
    const QByteArray cursor = "c" + QByteArray::number(++cursors_);
    const auto open = [&](const QVariantList& given) {
        return guarded({{ServerCommand::Plain,
                         "DECLARE " + cursor + " NO SCROLL CURSOR FOR " + statement.text,
                         {},
                         given},
                        {ServerCommand::Plain, ServerRows::fetch(cursor), {}}});
    };
    std::vector<ServerResult> answers = asked(statement, sql.values, open);
    return std::make_unique<ServerRows>(*this, std::move(answers.back()), cursor);
}

bool ServerEngine::tryBegin() {
    const ServerResult lock = link_.simple(beginStatements);
    inUnit_ = *PQgetvalue(lock.get(), 0, 0) == 't';
    if (!inUnit_) link_.simple("ROLLBACK");
    return inUnit_;
}

void ServerEngine::begin(Turn turn) {
    forgetAhead();
    if (link_.isLost()) connectAnew();
    for (BusyWait wait(turn);;) {
        try {
            if (tryBegin()) return;
        } catch (const StoreError&) {
            if (!link_.isLost()) throw;
            connectAnew();
            continue;
        }
        if (!wait.again()) throw StoreError(StoreError::busy, busyText);
    }
}

// Whether a commit whose answer is lost was carried out, the server alone knows.
void ServerEngine::commit() {
    try {
        sendWithLater({{ServerCommand::Plain, "COMMIT", {}}});
    } catch (const StoreError&) {
        if (!link_.isLost()) throw;
        throw StoreError(StoreError::general,
                         "The connection to the server was lost while this was being saved. Please look "
                         "whether it is there before you save it again.");
    }
    inUnit_ = false;
}

void ServerEngine::undo() {
    inUnit_ = false;
    forgetAhead();
    drop(later_, 0);
    if (link_.isLost()) return;
    try {
        link_.simple("ROLLBACK");
    } catch (const StoreError&) {  // lost with the connection, which undoes it as well
    }
}

// A point costs no round trip of its own.
void ServerEngine::setPoint(int level) {
    later_.push_back({ServerCommand::Plain, "SAVEPOINT " + savepoint(level), {}});
}

// What was put off within it fails here, and not behind it.
void ServerEngine::keepPoint(int level) {
    const bool writes = std::ranges::any_of(
        later_, [](const ServerCommand& command) { return command.kind != ServerCommand::Plain; });
    later_.push_back({ServerCommand::Plain, "RELEASE " + savepoint(level), {}});
    if (writes) sendLater();
}

void ServerEngine::undoToPoint(int level) {
    forgetAhead();
    const QByteArray point = "SAVEPOINT " + savepoint(level);
    size_t at = later_.size();
    while (at > 0 && later_[at - 1].text != point) --at;
    drop(later_, at > 0 ? at - 1 : 0);
    if (at > 0) return;  // it was not even sent
    if (link_.isLost()) return;
    try {
        link_.simple("ROLLBACK TO " + savepoint(level) + "; RELEASE " + savepoint(level));
    } catch (const StoreError&) {
    }
}

bool ServerEngine::hasUndoneUnit() const { return !link_.isInUnit(); }

QString ServerEngine::valueOf(const char* statement) {
    const auto answers = guarded({{ServerCommand::Plain, statement, {}}});
    const PGresult* const found = answers.front().get();
    return PQntuples(found) == 0 ? QString() : QString::fromUtf8(PQgetvalue(found, 0, 0));
}

qint64 ServerEngine::version() {
    if (valueOf("SELECT to_regclass('storeversion')").isEmpty()) return 0;
    return valueOf("SELECT Version FROM StoreVersion").toLongLong();
}

void ServerEngine::setVersion(qint64 version) {
    sendLater();
    link_.simple("UPDATE StoreVersion SET Version = " + QByteArray::number(version));
}
