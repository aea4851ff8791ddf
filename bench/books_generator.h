#pragma once
#include "platform/store/connection.h"

// The books of a firm of a size, for measuring: sales of five lines, a purchase for every four of them, a
// receipt or a voucher for most, and a contact and an item for each so many. Every document is in the ledger;
// nothing is costed and no balance is stored yet. The same size gives the same books.
void generateBooks(Connection& store, qint64 salesDocuments);

// One document in a hundred goes back into the queue, as a save leaves it, with its items.
void queueOnePercent(Connection& store);
