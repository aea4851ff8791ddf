#pragma once
#include "platform/outcome.h"
#include "platform/search_field.h"

#include <QString>
#include <optional>

// The rows that a journal lists: its master table, joined to the contact of each document.
struct JournalTables {
    const char* table;
    const char* contactColumn;
    const char* searchOrder;  // of a search that finds neither a sort nor a filter set
    QList<SearchField> fields;
    // What is said of a search text that is no date or no amount; null: what the store would say.
    const char* notADate = nullptr;
    const char* notAnAmount = nullptr;
};

// The statement of a journal as the person's clicks have put it together: one search clause, and one tail
// that holds either a sort or the printed filter, so that each replaces the other.
class JournalQuery {
  public:
    explicit JournalQuery(const JournalTables& tables);

    QString columns() const;
    QString from() const;
    // The search clause with the printed filter behind it; either may be empty. A filter that was set without
    // a search begins with WHERE: behind a former search clause the store refuses the two.
    Sql where() const;
    QString order() const;  // " ORDER BY ...", or empty: the store's order

    void setOrder(const QString& order) { tail_ = order; }
    // Of what a filter lets through; empty: the store's own.
    void setFilteredOrder(const QString& order) { filteredOrder_ = order; }
    // searching: a search text stands in the screen, so that the filter follows its clause.
    void setPrintedFilter(bool printed, bool searching);

    // Replaces the search clause; an empty text keeps the former one. A field that is not there, or a text
    // that its column cannot take, is a fault and changes nothing.
    std::optional<Fault> search(const QString& caption, const QString& text, bool exact);

  private:
    bool sorts() const { return tail_.startsWith(" ORDER BY"); }
    void fitTailToSearch();

    JournalTables tables_;
    Sql search_;
    QString tail_;
    QString filteredOrder_;
};
