#pragma once
#include "platform/outcome.h"
#include "platform/store/connection.h"
#include "platform/ui/list_view.h"

#include <optional>
#include <variant>
#include <vector>

// What the search of the database asks for, without a window: three kinds, each a row of a table, and one
// chain for all of them. Failures are StoreError.

// A filter box and the condition that it adds when it is filled.
struct SearchFilter {
    enum Match { Like, Date };
    const char* control;
    const char* label;
    const char* column;  // of a transaction: set by its journal
    Match match = Like;
};

// One of the four journals, as the search of transactions reads it.
struct SearchJournal {
    const char* name;      // "Sales Journal"
    const char* book;      // "Sales"
    const char* bookCode;  // "S", as the print-out is given it
    const char* refLabel;  // of the reference filter
    const char* table;
    const char* contact;  // the column with the contact
    const char* reference;
    const char* date;
    const char* amount;
    bool hasTerms;  // term, due date and balance
};
const std::vector<SearchJournal>& searchJournals();
const SearchJournal* findSearchJournal(const QString& name);  // null: none of the four

struct SearchKind {
    const char* name;     // "Inquire Item"
    const char* frame;    // "fraItem"
    const char* caption;  // of that frame
    const char* list;     // "lvwItem"
    const char* clear;    // "cmdClear"
    const char* inquireRight;
    const char* printRight;
    bool hasJournals;
    bool followsKeys;  // searches at every key, not when a filter is left
    std::vector<SearchFilter> filters;
    QList<ListColumn> columns;
};
const std::vector<SearchKind>& searchKinds();
const SearchKind* findSearchKind(const QString& name);  // null: none of the three

struct SearchRequest {
    QString kind;
    QString journal;      // of a transaction
    QStringList filters;  // as typed, in the order of the kind
    QString itemDate;     // what stands in the date filter of the transactions: a search of items tests it
    bool all = false;     // without conditions
};

// A search that can be run: the rows come in pages, in the order of the store.
struct Search {
    const SearchKind* kind;
    const SearchJournal* journal;  // null: not of transactions
    QString columns;               // of the list, in its order, read by position
    QString printed;               // of the print-out
    QString from;
    QString table;          // whose rows are found
    Sql where;              // " WHERE ...", or empty
    Sql statement() const;  // of the print-out
};

// What is found, nothing (all filters are empty), or what refuses the search.
using SearchAnswer = std::variant<std::monostate, Search, Fault>;
SearchAnswer prepareSearch(const SearchRequest& request);

struct SearchPage {
    QList<QStringList> rows;     // as the list shows them
    std::optional<qint64> last;  // where the next page begins; none: this was the last
};
SearchPage readPage(Connection& store, const Search& search, qint64 after, int rows);
