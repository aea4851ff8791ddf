#pragma once
#include "masters/master_records.h"

// The rules of the item master. Without a window; failures are StoreError unless said otherwise.

inline constexpr MasterTable itemMaster{"tblItemMaster", "ItemCode"};

// An item as typed. The supplier goes by his name.
struct ItemEntry {
    QString ItemCode = {};
    QString Description = {};
    QString Unit = {};
    QString Locator = {};
    QString Remarks = {};
    QString SupplierName = {};
    QString CostPrice = {};
    QString SellingPrice = {};
    QString WholesalePrice = {};
    QString DateAquired = {};
    QString OrderLevel = {};
    QString InventoryBalance = {};
    MasterEdit edit = {};  // of an old item
};

// Of a text that is no date.
inline constexpr const char* invalidAquisitionDate = "Invalid Aquisition Date!";

// Checks, in the system's order, and writes: a new item, or what of the one of the entry's code was changed.
// All or nothing. The balance is recomputed from the books, whatever was typed; the code of a new item is the
// base of the next. An edit with an empty currentCode passes the checks and writes nothing. One of an item
// that someone else has changed meanwhile is a Fault. Of the prices only those count that this edit changes
// too: orders write them beside. The balance never counts. A failing store is a Fault.
Outcome SaveItem(Connection& store, const ItemEntry& entry, bool addMode, const QString& currentCode);

// Fault when a sales or a purchase line holds the item.
Outcome DeleteItem(Connection& store, const QString& itemCode);

// The code proposed for a new item: the last one plus 1, "1000000001" when there is none, and the last one
// again when it is no number.
QString NextItemCode(Connection& store);
void StoreLastItemCode(Connection& store, const QString& itemCode);

const QList<SearchField>& itemSearchFields();
