#pragma once
#include "platform/box.h"
#include "platform/currency.h"
#include "platform/progress.h"
#include "platform/store/connection.h"

#include <QDate>
#include <optional>

// Balances are recomputed from the books by summing, never kept up. Compute routines write nothing; a term
// with no rows, or a failed one, counts 0. The cached Balance columns are rebuilt by the Store, Update and
// Recompute routines. Errors are passed over (a busy store is thrown); messages go to the collected boxes.

Currency SalesBalance(Connection& store, const QString& refNo);          // Halin - |Bayad + Palugit|
Currency PurchaseBalance(Connection& store, const QString& purchaseNo);  // Gipalit - Bayad
Currency CustomerBalance(Connection& store, const QString& contactId);   // Halin - |Bayad + Palugit|
Currency SupplierBalance(Connection& store, const QString& contactId);   // Gipamalit - Gipangbayran
Currency ItemBalance(Connection& store, const QString& itemCode);        // TotalDelivery - TotalSales
// On hand as of the date: from the earliest document to the date, both inside.
Currency ItemBalanceBetween(Connection& store, const QString& itemCode, const QDate& date);
Currency ServedOnOrder(Connection& store, const QString& itemCode, const QString& reference);
// Both together: what an order of that date can serve of the item.
Currency StockForOrder(Connection& store, const QString& itemCode, const QDate& date,
                       const QString& reference);

// What these routines ask of the store, to be read ahead.
Sql SalesBalanceSums(const QString& refNo);
Sql PostedOnSaleQuery(const QString& refNo);
Sql PurchaseBalanceSums(const QString& purchaseNo);
Sql ItemBalanceSums(const QString& itemCode);
Sql StockForOrderSums(const QString& itemCode, const QDate& date, const QString& reference);

// What stands against a sales order, by one statement. Nothing: no order of this number, or a sum of it
// leaves its range.
struct PostedOnSale {
    Currency balance;
    Currency discount;  // granted on it so far
};
std::optional<PostedOnSale> postedOnSale(Connection& store, const QString& refNo);

void StoreSalesBalance(Connection& store, const QString& refNo, Boxes& boxes);
void StorePurchaseBalance(Connection& store, const QString& purchaseNo, Boxes& boxes);
void StoreItemBalance(Connection& store, const QString& itemCode, Boxes& boxes);
// As Store..., but nothing for a key that is not there.
void UpdateSalesBalance(Connection& store, const QString& refNo, Boxes& boxes);
void UpdatePurchaseBalance(Connection& store, const QString& purchaseNo, Boxes& boxes);
void UpdateItemBalance(Connection& store, const QString& itemCode, Boxes& boxes);
// The same for several.
void UpdateSalesBalances(Connection& store, const QStringList& refNos);
void UpdatePurchaseBalances(Connection& store, const QStringList& purchaseNos);
void UpdateItemBalances(Connection& store, const QStringList& itemCodes);

// All keys at once: set-based, writing only what changed, with the figures of the routines above. A sum that
// overflows counts 0 for its key, as there, and stops no other. In units of at most a quarter of a second of
// store time.
void RecomputeReceivableBalances(Connection& store, Progress& progress);
void RecomputePayableBalances(Connection& store, Progress& progress);
void RecomputeInventoryBalances(Connection& store, Progress& progress);
