#pragma once
#include "books/balance_figures.h"
#include "platform/box.h"
#include "platform/progress.h"
#include "platform/store/connection.h"

#include <vector>

// The sums of one table by the key of another.
struct SumSource {
    const char* table;
    const char* key;
    const char* columns;  // each summed up
    int columnCount;
    const char* filter;
};

// A Balance column, which caches what a compute routine sums: three twins that differ in these rows only.
struct CachedBalance {
    const char* table;
    const char* key;
    Currency (*compute)(Connection& store, const QString& key);
    Sql (*sums)(const QString& key);  // what compute asks
    const char* missing;              // the text of the box for a key that is not there
    const char* waitText;             // of the progress box
    // The terms for all keys at once: a column of the table itself, then the sums; and the figure they make.
    const char* ownTerm;
    std::vector<SumSource> sources;
    Currency (*figure)(const std::vector<Term>& terms);
};

extern const CachedBalance receivableBalance;
extern const CachedBalance payableBalance;
extern const CachedBalance inventoryBalance;

void storeBalance(Connection& store, const CachedBalance& cached, const QString& key, Boxes& boxes);
void updateBalances(Connection& store, const CachedBalance& cached, const QStringList& keys);
void recomputeBalances(Connection& store, const CachedBalance& cached, Progress& progress);
