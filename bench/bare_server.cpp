#include "bench/bare_server.h"

#include <QList>

#include <libpq-fe.h>
#include <cstdlib>
#include <memory>

namespace bare {
namespace {
struct ResultEnd {
    void operator()(PGresult* result) const { PQclear(result); }
};
using Result = std::unique_ptr<PGresult, ResultEnd>;

[[noreturn]] void fail(PGconn* connection) {
    std::fprintf(stderr, "%s", PQerrorMessage(connection));
    std::abort();
}

void require(PGconn* connection, const PGresult* result) {
    const ExecStatusType status = PQresultStatus(result);
    if (status == PGRES_FATAL_ERROR || status == PGRES_BAD_RESPONSE || status == PGRES_PIPELINE_ABORTED)
        fail(connection);
}

QByteArray firstValue(const PGresult* result) {
    return PQntuples(result) > 0 ? QByteArray(PQgetvalue(result, 0, 0)) : QByteArray();
}

QList<const char*> pointers(const QByteArrayList& values) {
    QList<const char*> texts;
    for (const QByteArray& value : values) texts += value.isNull() ? nullptr : value.constData();
    return texts;
}
}  // namespace

Server::Server(const QString& uri) : connection_(PQconnectdb(uri.toUtf8().constData())) {
    if (PQstatus(connection_) != CONNECTION_OK) fail(connection_);
    run("SET client_min_messages = warning; SET jit = off");
}

Server::~Server() { PQfinish(connection_); }

QByteArray Server::run(const QByteArray& statements) {
    const Result result(PQexec(connection_, statements.constData()));
    require(connection_, result.get());
    return firstValue(result.get());
}

void Server::prepare(const QByteArray& name, const QByteArray& statement) {
    const Result result(PQprepare(connection_, name.constData(), statement.constData(), 0, nullptr));
    require(connection_, result.get());
}

int Server::readAll(const QByteArray& name, const QByteArrayList& values) {
    const QList<const char*> texts = pointers(values);
    const Result result(PQexecPrepared(connection_, name.constData(), static_cast<int>(texts.size()),
                                       texts.constData(), nullptr, nullptr, 0));
    require(connection_, result.get());
    volatile int length = 0;
    for (int row = 0; row < PQntuples(result.get()); ++row)
        for (int column = 0; column < PQnfields(result.get()); ++column)
            length = length + PQgetlength(result.get(), row, column);
    return PQntuples(result.get());
}

void Server::add(const QByteArray& name, const QByteArrayList& values) {
    if (sent_++ == 0) PQenterPipelineMode(connection_);
    const QList<const char*> texts = pointers(values);
    if (!PQsendQueryPrepared(connection_, name.constData(), static_cast<int>(texts.size()), texts.constData(),
                             nullptr, nullptr, 0))
        fail(connection_);
}

QByteArray Server::sendAll() {
    QByteArray value;
    PQpipelineSync(connection_);
    for (; sent_ > 0; --sent_) {
        while (const Result result{PQgetResult(connection_)}) {
            require(connection_, result.get());
            if (PQntuples(result.get()) > 0) value = firstValue(result.get());
        }
    }
    const Result end(PQgetResult(connection_));
    PQexitPipelineMode(connection_);
    return value;
}

void Server::copyOut(const QByteArray& statement, const std::function<void(char* row)>& take) {
    const Result start(PQexec(connection_, statement.constData()));
    require(connection_, start.get());
    for (char* row = nullptr; PQgetCopyData(connection_, &row, 0) > 0; PQfreemem(row)) take(row);
    const Result end(PQgetResult(connection_));
    require(connection_, end.get());
    while (const Result rest{PQgetResult(connection_)}) continue;
}

void Server::copyIn(const QByteArray& statement, const QByteArray& rows) {
    const Result start(PQexec(connection_, statement.constData()));
    require(connection_, start.get());
    if (PQputCopyData(connection_, rows.constData(), static_cast<int>(rows.size())) != 1 ||
        PQputCopyEnd(connection_, nullptr) != 1)
        fail(connection_);
    const Result end(PQgetResult(connection_));
    require(connection_, end.get());
    while (const Result rest{PQgetResult(connection_)}) continue;
}
}  // namespace bare
