#pragma once
#include "books/keyed_figures.h"
#include "platform/box.h"
#include "platform/currency.h"
#include "platform/progress.h"
#include "platform/store/connection.h"

#include <QDate>

// The ledger of stock movements and its costing, first in first out. The order of the ledger is ItemCode,
// TransDate, BookID ("P" before "S"), ZevRef; where only the date orders rows, ties fall to BookID, ZevRef.

void AddStockValuation(Connection& store, const QString& bookId, const QString& reference,
                       const QString& contact, const QString& itemCode, const QDate& date, Currency quantity,
                       Currency price);
void RemoveStockValuation(Connection& store, const QString& bookId, const QString& reference);

// One item: the running Balance of its rows; the SalesCost of its "S" rows; both in one scan. Only rows that
// change are written. When layers run out the rest of a sale costs nothing. Throw StoreError, and
// OverflowError at a figure beyond the range: the rows before it then have theirs, the rest keep what they
// had.
void ComputeStockBalances(Connection& store, const QString& itemCode, Progress& progress = Progress::none());
void ComputeSalesCost(Connection& store, const QString& itemCode, Progress& progress = Progress::none());

// The value of the stock on hand: the newest layers of the period, as far as the Balance of its last row
// goes. A failure adds its box, and counts 0; a busy store is thrown.
Currency ValuationCost(Connection& store, const QDate& from, const QDate& to, const QString& itemCode,
                       Boxes& boxes);
// The same of every item that has rows in the period, by ItemCode, in one pass over the ledger. A value
// beyond the range adds its box, and counts 0; failures of the store are thrown.
KeyedFigures ValuationCosts(Connection& store, const QDate& from, const QDate& to, Boxes& boxes);
// The value of all stock on hand, from the first document's day to the last one's.
Currency StockValue(Connection& store, const QString& itemCode, Boxes& boxes);
KeyedFigures StockValues(Connection& store, Boxes& boxes);  // of every item
// Of what was on hand at the end of this day.
Currency StockValueAt(Connection& store, const QDate& day, const QString& itemCode, Boxes& boxes);
// The cost of the sales of the period. Failures as above; a period without rows sums to null, which is one.
Currency PeriodSalesCost(Connection& store, const QDate& from, const QDate& to, const QString& itemCode,
                         Boxes& boxes);
// The value of all stock on hand of each of these items over its quantity, into CostPrice; 0 with no stock. A
// missing item adds a box, and so does a value beyond the range, which counts 0.
void StoreCostPrices(Connection& store, const QStringList& itemCodes, Boxes& boxes);

// Every item: the figures of ComputeStockBalances and ComputeSalesCost in one ordered scan of the ledger,
// writing only rows that change, in units of at most a quarter of a second. A figure beyond the range is
// passed over as those would leave it, and stops no other pass or item.
void RecomputeStockValuation(Connection& store, Progress& progress);

// Keeps the master price in step with documents. Unchanged or unknown item: nothing is written.
enum class PriceKind { Cost, Sell, Whole };
const char* priceColumn(PriceKind kind);  // of tblItemMaster
void UpdateItemPrice(Connection& store, const QString& itemCode, PriceKind kind, Currency price);
