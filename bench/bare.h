#pragma once
#include "platform/store/sql.h"

#include <QByteArrayList>
#include <functional>
#include <utility>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

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
    const QByteArrayList& changes() const { return changes_; }  // those of them that changed rows

  private:
    static int record(unsigned event, void* recorder, void* statement, void* text);
    void began(sqlite3_stmt* statement, const char* text);
    void ended(sqlite3_stmt* statement);

    sqlite3* engine_;
    QByteArrayList statements_;
    QByteArrayList changes_;
    int changed_;  // rows, so far
};

// The changes in one unit, with as few statements as can make them: the rows that are inserted into one table
// go in together.
QByteArrayList asOneUnit(const QByteArrayList& changes);

// Prepares the statements first, untimed, and then steps them; the milliseconds of the stepping.
double replay(sqlite3* engine, const QByteArrayList& statements);

double milliseconds(const std::function<void()>& work);
double medianOf(std::vector<double> times);
// Of several runs, the first of which only warms the caches.
double median(const std::function<void()>& work);
// Of both in turn: where the machine has other work as well, it has it for both.
std::pair<double, double> medians(const std::function<void()>& measured,
                                  const std::function<void()>& bareWork);

// "name   measured ms   bare ms   ratio"
void report(const QString& name, double measured, double bareTime);

}  // namespace bare
