#pragma once

// What menu items do by themselves, without a screen.

// Asks, and rebuilds every balance behind the shared progress box.
void recomputeBalances();

// The question before a report that rests on the end of day, while rows are waiting for it. True: go on.
bool goesOnWithPendingRows();

// Reminds of the end of day when rows are waiting for it.
void remindOfEndOfDay();
