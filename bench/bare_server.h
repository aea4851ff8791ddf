#pragma once
#include <QByteArrayList>
#include <QString>
#include <functional>

struct pg_conn;

namespace bare {

// A connection to a server through the client library alone, with nothing of ours around it. What fails ends
// the bench.
class Server {
  public:
    explicit Server(const QString& uri);
    ~Server();
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;

    // Statements without values, to their end; the first value of the last one's first row.
    QByteArray run(const QByteArray& statements);
    void prepare(const QByteArray& name, const QByteArray& statement);
    // Every value of every row of a prepared statement looked at; the number of rows.
    int readAll(const QByteArray& name, const QByteArrayList& values = {});

    // Prepared statements that go out together and are answered together.
    void add(const QByteArray& name, const QByteArrayList& values = {});
    // The first value of the last one that gave a row.
    QByteArray sendAll();

    // The rows of a COPY ... TO STDOUT, one by one, in its text format.
    void copyOut(const QByteArray& statement, const std::function<void(char* row)>& take);
    // A COPY ... FROM STDIN of rows in its text format.
    void copyIn(const QByteArray& statement, const QByteArray& rows);

  private:
    pg_conn* connection_;
    int sent_ = 0;
};

}  // namespace bare
