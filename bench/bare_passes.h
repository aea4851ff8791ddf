#pragma once

struct sqlite3;

// The passes of the books as bare loops on the engine's handle, to measure the program's own against: the
// best way that is known to do the same work, and nothing else.
void bareRead(sqlite3* engine);         // of the ledger
void bareRevaluation(sqlite3* engine);  // reads by row, costs in memory, writes what changed in short units
void bareBalances(sqlite3* engine);     // one hash pass over the tables of each balance, in one unit
void bareEndOfDay(sqlite3* engine);     // posts and costs what is queued
