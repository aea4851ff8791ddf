#pragma once
#include "platform/store/sql.h"

#include <QByteArrayList>
#include <functional>

struct sqlite3;

// What a measured pass is held against: the same statements on the driver's handle, with nothing of ours
// around them.
namespace bare {

// The statement in the words of the engine, its values bound, every column of every row read. Returns the
// number of rows.
qint64 readAll(sqlite3* engine, const Sql& statement);

// Writes down every statement that the engine runs while it lives, with its values in place.
class Recorder {
  public:
    explicit Recorder(sqlite3* engine);
    ~Recorder();
    Recorder(const Recorder&) = delete;
    Recorder& operator=(const Recorder&) = delete;
    const QByteArrayList& statements() const { return statements_; }

  private:
    sqlite3* engine_;
    QByteArrayList statements_;
};

// Prepares the statements first, untimed, and then steps them; the milliseconds of the stepping.
double replay(sqlite3* engine, const QByteArrayList& statements);

double milliseconds(const std::function<void()>& work);
// Of several runs, the first of which only warms the caches.
double median(const std::function<void()>& work);

// "name   measured ms   bare ms   ratio"
void report(const QString& name, double measured, double bareTime);

}  // namespace bare
