#include "masters/item_document.h"

#include "books/balances.h"
#include "foundation/shared_routines.h"
#include "platform/parsing.h"
#include "platform/store/transaction.h"

namespace {
using Check = std::optional<Fault>;

bool blank(const QString& text) { return trim(text).isEmpty(); }

Check codesFault(const ItemEntry& entry) {
    if (blank(entry.ItemCode)) return errorFault("Please Enter Item Code!", "txtItemCode");
    if (blank(entry.SupplierName)) return errorFault("Please Enter Supplier Code!", "txtSupplierCode");
    return {};
}

// The wholesale price is no part of this test.
Check numbersFault(const ItemEntry& entry) {
    const bool cost = isNumeric(entry.CostPrice);
    if (!cost || !isNumeric(entry.SellingPrice))
        return Fault{information("Invalid Price!", "Please Enter Numeric Value for Prices!"),
                     cost ? "txtSellingPrice" : "txtCostPrice"};
    if (!isNumeric(entry.InventoryBalance))
        return errorFault("Please Enter Numeric Value for Inventory Balance!", "txtInventoryBalance");
    if (!isNumeric(entry.OrderLevel))
        return errorFault("Please Enter Numeric Value for Re-Order Level!", "txtReorder");
    if (blank(entry.Unit)) return errorFault("Please Enter Unit!", "txtUnit");
    return {};
}

// Cost <= wholesale <= selling.
Check pricesFault(const ItemEntry& entry) {
    const Currency cost = *parseNumber(entry.CostPrice), selling = *parseNumber(entry.SellingPrice);
    if (cost > selling) return errorFault("Cost Price is Greater Than Selling Price!", "txtCostPrice");
    const auto wholesale = parseNumber(entry.WholesalePrice);
    if (!wholesale)
        return Fault{exclamation("Error...", '"' + entry.WholesalePrice + "\" is not a number."),
                     "txtWholesale"};
    if (cost > *wholesale) return errorFault("Cost Price is Greater Than Wholesale Price!", "txtCostPrice");
    if (*wholesale > selling)
        return errorFault("Wholesale Price is Greater Than Selling Price!", "txtWholesale");
    return {};
}

Check duplicateFault(Connection& store, const ItemEntry& entry) {
    if (RecordFound(store, "tblItemMaster", "ItemCode", trim(entry.ItemCode)))
        return errorFault("Duplicate Item Code! Please Assign Another Number!", "txtItemCode");
    if (nameFound(store, "tblItemMaster", "Description", entry.Description))
        return errorFault("Item Description Already Exist! System Cannot Allow Same Item Description!",
                          "txtDescription");
    return {};
}

Check entryFault(Connection& store, const ItemEntry& entry) {
    if (const Check found = codesFault(entry)) return found;
    if (const Check found = numbersFault(entry)) return found;
    if (!RecordFound(store, "tblContactMaster", "ContactName", trim(entry.SupplierName)))
        return errorFault("Supplier Does Not Exist!", "txtSupplierCode");
    if (const Check found = pricesFault(entry)) return found;
    if (!isDate(entry.DateAquired)) return errorFault(invalidAquisitionDate, "txtDateAquired");
    if (!RecordFound(store, "tblUnitMaster", "UnitCode", trim(entry.Unit)))
        return errorFault("Unit Code Does Not Exist!", "txtUnit");
    return {};
}

ColumnValues columnsOf(Connection& store, const ItemEntry& entry) {
    const QString supplier = LookupField(store, "ContactID", "tblContactMaster", "ContactName",
                                         trim(entry.SupplierName), LookupMode::PrimaryKey);
    return {{"ItemCode", trim(entry.ItemCode)},
            {"Description", trim(entry.Description).toUpper()},
            {"Unit", trim(entry.Unit)},
            {"Locator", trim(entry.Locator).toUpper()},
            {"Remarks", trim(entry.Remarks).toUpper()},
            {"SupplierCode", supplier},
            {"CostPrice", bound(*parseNumber(entry.CostPrice))},
            {"SellingPrice", bound(*parseNumber(entry.SellingPrice))},
            {"WholesalePrice", bound(*parseNumber(entry.WholesalePrice))},
            {"DateAquired", *parseDate(entry.DateAquired)},
            {"OrderLevel", bound(*parseNumber(entry.OrderLevel))},
            {"Balance", bound(*parseNumber(entry.InventoryBalance))}};
}

// A changed price is held against those that are stored by now, not against those that were shown.
Check storedPricesFault(Connection& store, const ItemEntry& entry) {
    const Recordset row =
        store.execute({"SELECT * FROM tblItemMaster WHERE ItemCode = ?", {trim(entry.ItemCode)}});
    ItemEntry prices = entry;
    bool anyChanged = false;
    for (auto [column, price] : {std::pair{"CostPrice", &prices.CostPrice},
                                 {"SellingPrice", &prices.SellingPrice},
                                 {"WholesalePrice", &prices.WholesalePrice}}) {
        const bool changed = entry.edit.changed.contains(column);
        anyChanged |= changed;
        if (!changed && !row.eof()) *price = row.currency(column).toPlainText();
    }
    return anyChanged ? pricesFault(prices) : Check();
}

// The tests against the store and the write are one unit: no other workstation comes between.
Outcome writeItem(Connection& store, const ItemEntry& entry, bool addMode) {
    Transaction save(store);
    if (const Check found = addMode ? duplicateFault(store, entry) : storedPricesFault(store, entry))
        return *found;
    const QString code = trim(entry.ItemCode);
    const QSet<QString> ordersWrite{"CostPrice", "SellingPrice", "WholesalePrice"};
    if (const Check fault = writeRecord(store, itemMaster, addMode, code, columnsOf(store, entry), entry.edit,
                                        ordersWrite - entry.edit.changed + QSet<QString>{"Balance"}))
        return *fault;
    Done done;
    StoreItemBalance(store, code, done.boxes);
    if (addMode) StoreLastItemCode(store, code);
    save.commit();
    return done;
}
}  // namespace

Outcome SaveItem(Connection& store, const ItemEntry& entry, bool addMode, const QString& currentCode) {
    try {
        if (const Check found = entryFault(store, entry)) return *found;
        if (!addMode && blank(currentCode)) return Done{};
        return writeItem(store, entry, addMode);
    } catch (const StoreError& error) {
        return Fault{saveErrorBox(error), {}};
    }
}

Outcome DeleteItem(Connection& store, const QString& itemCode) {
    static const QList<DeleteGuard> guards{
        {"tblSalesDetails", "ItemID", "You Cannot Delete This Item, You have Sales Order for this Item!"},
        {"tblPurchaseDetails", "ItemID",
         "You Cannot Delete This Item, You have Purchase Order for this Item!"},
    };
    return deleteRecord(store, itemMaster, guards, itemCode,
                        "You cannot delete this item because this is used in the packing list!");
}

QString NextItemCode(Connection& store) {
    const Recordset row = store.execute("SELECT Server FROM tblServer");
    if (row.eof()) return "1000000001";
    const auto last = parseNumber(row.text("Server"));
    if (!last) return row.text("Server");
    return (*last + Currency::fromInteger(1)).toPlainText();
}

void StoreLastItemCode(Connection& store, const QString& itemCode) {
    store.run("DELETE FROM tblServer");
    Recordset row = store.openTable("tblServer");
    row.addNew();
    row.set("Server", itemCode);
    row.update();
}

const QList<SearchField>& itemSearchFields() {
    static const QList<SearchField> fields{
        {"Item Code", "ItemCode"},
        {"Description", "Description", SearchField::TwoWords},
        {"Unit", "Unit"},
        {"Locator", "Locator"},
        {"Remarks", "Remarks"},
        {"Supplier Code", "SupplierCode"},
        {"Cost Price", "CostPrice", SearchField::Amount},
        {"Selling Price", "SellingPrice", SearchField::Amount},
        {"Inventory Balance", "Balance", SearchField::Amount},
        {"Who Updated", "UpdatedBy", SearchField::Whole},
    };
    return fields;
}
