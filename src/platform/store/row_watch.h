#pragma once
#include <QString>
#include <functional>

class Connection;
class Engine;

// Listens to what a connection itself writes to one table, row by row, whoever writes and in whatever
// statement. What other workstations write is not heard. The rows are told as they are written: their unit
// may still be undone.
class RowWatch {
  public:
    enum Change { Added, Changed, Deleted };
    using Listener = std::function<void(Change change, qint64 row)>;

    RowWatch(Connection& store, const QString& table, Listener listener);
    ~RowWatch();
    RowWatch(const RowWatch&) = delete;
    RowWatch& operator=(const RowWatch&) = delete;

    // For the engines: whether anybody listens to a table of theirs, and what they have written to it.
    static bool isHeard(const Engine* engine, QStringView table);
    static void tell(const Engine* engine, QStringView table, Change change, qint64 row);

  private:
    bool listensTo(const Engine* engine, QStringView table) const;

    const Engine* engine_;  // only to compare: the connection may be closed by now
    QString table_;
    Listener listener_;
};
