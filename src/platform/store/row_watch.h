#pragma once
#include <QByteArray>
#include <QString>
#include <functional>

class Connection;
struct sqlite3;

// Listens to what a connection itself writes to one table, row by row, whoever writes and in whatever
// statement. What other workstations write is not heard. The rows are told as they are written: their unit
// may still be undone. A server tells nothing of the kind: there it stays silent.
class RowWatch {
  public:
    enum Change { Added, Changed, Deleted };
    using Listener = std::function<void(Change change, qint64 row)>;

    RowWatch(Connection& store, const QString& table, Listener listener);
    ~RowWatch();
    RowWatch(const RowWatch&) = delete;
    RowWatch& operator=(const RowWatch&) = delete;

  private:
    static void hear(void* handle, int operation, const char* database, const char* table, long long row);

    sqlite3* handle_;
    QByteArray table_;
    Listener listener_;
};
