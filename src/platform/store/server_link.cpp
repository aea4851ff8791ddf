#include "platform/store/server_link.h"

#include "platform/store/place.h"
#include "platform/store/sql.h"

#include <QRegularExpression>
#include <QSqlDriver>
#include <QSqlError>

#include <libpq-fe.h>
#include <atomic>

namespace {
std::atomic<qint64> trips = 0;

// A workstation that is switched off in the midst of a unit lets go of the lock within half a minute.
constexpr const char* setting =
    "SET client_min_messages = warning; SET lock_timeout = 5000; SET jit = off; "
    "SET tcp_keepalives_idle = 10; SET tcp_keepalives_interval = 5; SET tcp_keepalives_count = 3; "
    "SET timezone = 'UTC'";
constexpr const char* lostText =
    "The connection to the server was lost. Nothing of this was saved. Please try again.";

QString nextName() {
    static std::atomic<int> count = 0;
    return QString("server-%1").arg(++count);
}

struct OptionsEnd {
    void operator()(PQconninfoOption* options) const { PQconninfoFree(options); }
};
using Options = std::unique_ptr<PQconninfoOption, OptionsEnd>;

Options optionsOf(const QString& uri) {
    char* reason = nullptr;
    Options options(PQconninfoParse(uri.toUtf8().constData(), &reason));
    if (options) return options;
    const QString told = QString::fromUtf8(reason).trimmed();
    PQfreemem(reason);
    throw StoreError(StoreError::general, QString("The server's address cannot be read: %1").arg(told));
}

QString quoted(const char* value) {
    return u'\'' + QString::fromUtf8(value).replace('\\', "\\\\").replace('\'', "\\'") + u'\'';
}

// The driver takes the parts of a URI one by one.
void setPart(QSqlDatabase& database, QStringList& others, const PQconninfoOption& option) {
    const QByteArrayView part(option.keyword);
    const QString value = QString::fromUtf8(option.val);
    if (part == "host")
        database.setHostName(value);
    else if (part == "dbname")
        database.setDatabaseName(value);
    else if (part == "user")
        database.setUserName(value);
    else if (part == "password")
        database.setPassword(value);
    else
        others += QString("%1=%2").arg(option.keyword, quoted(option.val));
}

void setParts(QSqlDatabase& database, const QString& uri, const QString& password) {
    const Options options = optionsOf(uri);
    QStringList others;
    bool waits = false;
    for (const PQconninfoOption* option = options.get(); option->keyword; ++option) {
        if (!option->val) continue;
        setPart(database, others, *option);
        waits |= QByteArrayView(option->keyword) == "connect_timeout";
    }
    if (!waits) others += "connect_timeout=5";
    database.setConnectOptions(others.join(u' '));
    if (!password.isEmpty()) database.setPassword(password);
}

// The driver does not tell why it was refused.
StoreError refusal(const QString& uri, const QString& password) {
    const QByteArray utf8 = uri.toUtf8(), word = password.toUtf8();
    const char* const keys[] = {"dbname", password.isEmpty() ? nullptr : "password", nullptr};
    const char* const values[] = {utf8.constData(), word.constData(), nullptr};
    PGconn* const probe = PQconnectdbParams(keys, values, 1);
    const QString reason = QString::fromUtf8(PQerrorMessage(probe)).trimmed();
    const bool lacksPassword = PQconnectionNeedsPassword(probe) != 0;
    const bool wrongPassword = !lacksPassword && PQconnectionUsedPassword(probe) != 0 &&
                               PQstatus(probe) != CONNECTION_OK && !reason.contains("does not exist");
    PQfinish(probe);
    const int number = lacksPassword || wrongPassword ? ::needsPassword : StoreError::general;
    return {number,
            QString("The store on the server \"%1\" cannot be opened: %2").arg(shownUri(uri), reason)};
}

// A value as the client library takes it.
struct Parameters {
    explicit Parameters(const QVariantList& given) {
        for (const QVariant& value : given) {
            const QVariant stored = storedValue(value);
            const bool isBytes = stored.metaType() == QMetaType::fromType<QByteArray>();
            formats += isBytes ? 1 : 0;
            isNull += stored.isNull();
            texts += stored.isNull() ? QByteArray() : isBytes ? stored.toByteArray() : textOf(stored);
        }
        for (qsizetype at = 0; at < texts.size(); ++at) {
            values += isNull[at] ? nullptr : texts[at].constData();
            lengths += static_cast<int>(texts[at].size());
        }
    }
    static QByteArray textOf(const QVariant& value) {
        if (value.metaType() == QMetaType::fromType<double>())
            return QByteArray::number(value.toDouble(), 'g', 17);
        return value.toString().toUtf8();
    }
    int count() const { return static_cast<int>(values.size()); }

    QByteArrayList texts;
    QList<bool> isNull;
    QList<const char*> values;
    QList<int> lengths;
    QList<int> formats;
};

bool sent(PGconn* connection, const ServerCommand& command) {
    const Parameters given(command.values);
    switch (command.kind) {
        case ServerCommand::Parse:
            return PQsendPrepare(connection, command.name.constData(), command.text.constData(), 0, nullptr);
        case ServerCommand::Describe:
            return PQsendDescribePrepared(connection, command.text.constData()) != 0;
        case ServerCommand::Prepared:
            return PQsendQueryPrepared(connection, command.text.constData(), given.count(),
                                       given.values.constData(), given.lengths.constData(),
                                       given.formats.constData(), 0);
        case ServerCommand::Plain:
            return PQsendQueryParams(connection, command.text.constData(), given.count(), nullptr,
                                     given.values.constData(), given.lengths.constData(),
                                     given.formats.constData(), 0);
    }
    Q_UNREACHABLE();
}

bool isFailure(const PGresult* result) {
    const ExecStatusType status = PQresultStatus(result);
    return status == PGRES_FATAL_ERROR || status == PGRES_BAD_RESPONSE;
}

int numberOf(QByteArrayView state) {
    if (state.startsWith("23")) return StoreError::refused;
    if (state == "22P02" || state == "42804") return StoreError::typeMismatch;
    if (state == "55P03" || state == "40P01" || state == "40001") return StoreError::busy;
    return StoreError::general;
}
}  // namespace

void ResultEnd::operator()(pg_result* result) const { PQclear(result); }

StoreError serverError(const pg_result* result) {
    const char* const state = PQresultErrorField(result, PG_DIAG_SQLSTATE);
    const int number = numberOf(state ? state : "");
    if (number == StoreError::busy)
        return {number, "Another workstation is using the store. Please try again."};
    const char* const reason = PQresultErrorField(result, PG_DIAG_MESSAGE_PRIMARY);
    return {number, QString::fromUtf8(reason ? reason : PQresultErrorMessage(result)).trimmed()};
}

QString shownUri(const QString& uri) {
    static const QRegularExpression secret("(?<=[?&])password=[^&]*&?|(?<=[^:/?]):[^:@/?]*(?=@)");
    return QString(uri).remove(secret);
}

ServerLink::ServerLink(const QString& uri, const QString& password)
    : name_(nextName()), database_(QSqlDatabase::addDatabase("QPSQL", name_)) {
    try {
        if (!database_.isValid())
            throw StoreError(StoreError::general, "The driver for PostgreSQL is not installed.");
        setParts(database_, uri, password);
        if (!database_.open()) throw refusal(uri, password);
        setUp();
    } catch (...) {
        database_ = QSqlDatabase();
        QSqlDatabase::removeDatabase(name_);
        throw;
    }
}

ServerLink::~ServerLink() {
    database_.close();
    database_ = QSqlDatabase();
    QSqlDatabase::removeDatabase(name_);
}

pg_conn* ServerLink::handle() const {
    const QVariant handle = database_.driver()->handle();
    return *static_cast<PGconn* const*>(handle.constData());
}

void ServerLink::setUp() { simple(setting); }

bool ServerLink::isLost() const { return lost_ || PQstatus(handle()) != CONNECTION_OK; }

// What the client library itself tells, and not the server, is that nobody answers any more; the state of the
// connection may not say so yet.
bool ServerLink::brokenOff(const PGresult* result) {
    const char* const state = isFailure(result) ? PQresultErrorField(result, PG_DIAG_SQLSTATE) : "";
    lost_ =
        lost_ || !state || QByteArrayView(state).startsWith("57P0") || QByteArrayView(state).startsWith("08");
    return isLost();
}

void ServerLink::reconnect() {
    PQreset(handle());
    lost_ = false;
    if (isLost())
        throw StoreError(StoreError::general,
                         QString("The server does not answer. Please try again. (%1)")
                             .arg(QString::fromUtf8(PQerrorMessage(handle())).trimmed()));
    setUp();
}

bool ServerLink::isInUnit() const { return PQtransactionStatus(handle()) == PQTRANS_INTRANS; }

qint64 ServerLink::roundTrips() { return trips; }

ServerResult ServerLink::simple(const QByteArray& statements) {
    ++trips;
    ServerResult result(PQexec(handle(), statements.constData()));
    if (brokenOff(result.get())) throw StoreError(StoreError::general, lostText);
    if (isFailure(result.get())) throw serverError(result.get());
    return result;
}

std::vector<ServerResult> ServerLink::send(const std::vector<ServerCommand>& commands) {
    ++trips;
    PGconn* const connection = handle();
    bool underWay = PQenterPipelineMode(connection) != 0;
    for (const ServerCommand& command : commands) underWay = underWay && sent(connection, command);
    underWay = underWay && PQpipelineSync(connection) != 0;
    std::vector<ServerResult> answers;
    std::optional<StoreError> failure;
    carriedOut_ = 0;
    for (size_t at = 0; underWay && at < commands.size(); ++at) {
        ServerResult answer(PQgetResult(connection));
        if (brokenOff(answer.get())) break;
        if (!failure && isFailure(answer.get())) {
            failure = serverError(answer.get());
            failedState_ = PQresultErrorField(answer.get(), PG_DIAG_SQLSTATE);
        }
        carriedOut_ += !failure;
        while (const ServerResult rest{PQgetResult(connection)}) continue;
        answers.push_back(std::move(answer));
    }
    if (underWay && !isLost()) ServerResult(PQgetResult(connection));  // the end of all
    PQexitPipelineMode(connection);
    if (isLost() || !underWay) throw StoreError(StoreError::general, lostText);
    if (failure) throw *failure;
    return answers;
}
