#pragma once
#include "platform/store/store_error.h"

#include <QByteArrayList>
#include <QList>
#include <QSqlDatabase>
#include <QVariantList>
#include <memory>
#include <vector>

struct pg_conn;
struct pg_result;

struct ResultEnd {
    void operator()(pg_result* result) const;
};
using ServerResult = std::unique_ptr<pg_result, ResultEnd>;

// What is sent to the server in one go, to be answered in one: a round trip over the network costs more than
// most statements.
struct ServerCommand {
    enum Kind { Plain, Parse, Describe, Prepared } kind;
    QByteArray text;  // of the statement; the name of one that was parsed
    QByteArray name;  // under which to parse it
    QVariantList values = {};
};

// The connection to a PostgreSQL server, opened by Qt's driver and used through the client library.
class ServerLink {
  public:
    ServerLink(const QString& uri, const QString& password);
    ~ServerLink();
    ServerLink(const ServerLink&) = delete;
    ServerLink& operator=(const ServerLink&) = delete;

    // The answers of these commands, one each. Behind one that fails none is carried out, and it is thrown
    // when all are answered.
    std::vector<ServerResult> send(const std::vector<ServerCommand>& commands);
    // How many of those that were sent last were carried out.
    size_t carriedOut() const { return carriedOut_; }
    // Statements without values, one answer: that of the last.
    ServerResult simple(const QByteArray& statements);

    bool isLost() const;
    // Whether the last statement that failed did so for a value that it was given, or came to.
    bool refusedValue() const { return failedState_.startsWith("22"); }
    // Connects anew; throws when the server is away.
    void reconnect();
    bool isInUnit() const;  // and the unit is sound
    // All round trips of this program so far.
    static qint64 roundTrips();

  private:
    pg_conn* handle() const;
    void setUp();

    bool brokenOff(const pg_result* result);

    QString name_;
    QSqlDatabase database_;
    QByteArray failedState_;
    bool lost_ = false;
    size_t carriedOut_ = 0;
};

StoreError serverError(const pg_result* result);
// The URI as it may be shown and kept: without a password.
QString shownUri(const QString& uri);
