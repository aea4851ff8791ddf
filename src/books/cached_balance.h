#pragma once
#include "books/balance_figures.h"
#include "platform/box.h"
#include "platform/progress.h"
#include "platform/store/bulk.h"
#include "platform/store/connection.h"

// A Balance column, which caches what a compute routine sums: three twins that differ in these rows only.
struct CachedBalance {
    const char* table;
    const char* key;
    Currency (*compute)(Connection& store, const QString& key);
    const char* missing;   // the text of the box for a key that is not there
    const char* waitText;  // of the progress box
    // The terms of all keys at once, as SELECT columns over the table "m", and the figure they make.
    const char* terms;
    Currency (*figure)(const BulkReader& row, int firstTerm);
};

extern const CachedBalance receivableBalance;
extern const CachedBalance payableBalance;
extern const CachedBalance inventoryBalance;

void storeBalance(Connection& store, const CachedBalance& cached, const QString& key, Boxes& boxes);
void updateBalance(Connection& store, const CachedBalance& cached, const QString& key, Boxes& boxes);
void recomputeBalances(Connection& store, const CachedBalance& cached, Progress& progress);
