#pragma once
#include <QtGlobal>
#include <initializer_list>
#include <span>
#include <string_view>

struct sqlite3;

// The figures of the reports, of all days, as bare passes over the driver's handle: the best way that is
// known to get them, every table read once, joined in memory by the bytes of its keys. What a line shows
// beside its figures is read too, and nothing is laid out.
namespace bare {

// What a report prints: how many bands with figures, and one number that all their figures make, whatever the
// order of lines that sort alike.
class Printed {
  public:
    void band(std::span<const qint64> figures) {
        quint64 mixed = 14695981039346656037U;
        for (const qint64 figure : figures) mixed = (mixed ^ static_cast<quint64>(figure)) * 1099511628211U;
        mixed ^= mixed >> 29;
        sum_ += mixed;
        ++bands_;
    }
    void band(std::initializer_list<qint64> figures) { band(std::span(figures.begin(), figures.size())); }
    qint64 bands() const { return bands_; }
    bool operator==(const Printed&) const = default;

  private:
    qint64 bands_ = 0;
    quint64 sum_ = 0;
};

Printed salesSummary(sqlite3* engine);
Printed salesDetails(sqlite3* engine);
Printed profitSummary(sqlite3* engine);
Printed profitDetails(sqlite3* engine);
Printed itemList(sqlite3* engine);
Printed contactList(sqlite3* engine);
Printed stockCard(sqlite3* engine, std::string_view item);
Printed receivableLogBook(sqlite3* engine);
Printed payableLogBook(sqlite3* engine);
Printed receivableDocuments(sqlite3* engine);
Printed receivableContacts(sqlite3* engine);
Printed payableDocuments(sqlite3* engine);
Printed payableContacts(sqlite3* engine);
Printed salesQuota(sqlite3* engine);

}  // namespace bare
