#pragma once

struct sqlite3;

// The passes of the books as bare loops on the engine's handle, to measure the program's own against: the
// same sums, rounding and commits, nothing else.
void bareRevaluation(sqlite3* engine);  // reads the ledger in order, costs in memory, writes every row back
void bareBalances(sqlite3* engine);     // one hash pass over the tables of each balance
void bareEndOfDay(sqlite3* engine);     // posts and costs what is queued
