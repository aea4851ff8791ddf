#include "masters/frmItem.h"

#include "foundation/session.h"
#include "masters/field_widths.h"
#include "masters/frmContactFound.h"
#include "platform/parsing.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/text_box.h"

namespace {
using F = MasterField;

constexpr MasterLookup suppliers{"tblContactMaster", "ContactID", "ContactName", "IsSupplier = True"};

// control, label, column, kind, capacity, access, blank, survives a clear, line, pair, pairs
QList<MasterField> itemFields() {
    return {
        {"txtItemCode", "&Item Code :", "ItemCode", F::Text, width::itemCode, F::NewOnly, "", false, 0, 0},
        {"txtDescription", "Descri&ption :", "Description", F::Upper, width::description, F::Open, "", false,
         0, 1, 2},
        {"txtSupplierCode", "Ma&jor Supplier :", "SupplierCode", F::Lookup, width::contactName, F::Open, "",
         false, 1, 0, 2, suppliers},
        {"txtUnit", "U&nit :", "Unit", F::Unit, width::unit, F::Open, "", false, 1, 2},
        {"txtLocator", "&Locator :", "Locator", F::UpperShown, width::locator, F::Open, "", false, 2, 0},
        {"txtRemarks", "Remar&ks :", "Remarks", F::Upper, width::remarks, F::Open, "", false, 2, 1, 2},
        {"txtCostPrice", "&Cost Price :", "CostPrice", F::Price, width::number, F::Open, "0.0000", false, 3,
         0},
        {"txtSellingPrice", "Sellin&g Price :", "SellingPrice", F::Price, width::number, F::Open, "0.0000",
         false, 3, 1},
        {"txtWholesale", "Whole&sale Price :", "WholesalePrice", F::Price, width::number, F::Open, "0.0000",
         false, 3, 2},
        {"txtDateAquired",
         "Date Aq&uired :",
         "DateAquired",
         F::Date,
         width::date,
         F::Open,
         "",
         true,
         4,
         0,
         1,
         {},
         invalidAquisitionDate},
        {"txtReorder", "Re-Order Level (&Qty) :", "OrderLevel", F::Amount, width::number, F::Open, "0", true,
         4, 1},
        {"txtInventoryBalance", "Inventor&y Balance :", "Balance", F::Amount, width::number, F::Open, "0",
         false, 4, 2},
        {"txtLastUpdate", "Last Update :", "DateUpdate", F::Date, width::date, F::Never, "", false, 5, 0},
        {"txtUpdatedBy", "Updated By :", "UpdatedBy", F::Text, width::userCode, F::Never, "", false, 5, 1},
    };
}

// The headings order by their position: "Wholesale" by locator, "Locator" by balance.
QList<GridColumn> itemColumns() {
    return {
        {"Item Code", "ItemCode", GridColumn::Text, 13, " ORDER BY ItemCode ASC"},
        {"Description", "Description", GridColumn::Text, 50, " ORDER BY Description ASC"},
        {"Cost Price", "CostPrice", GridColumn::Amount, 12, " ORDER BY CostPrice ASC"},
        {"Selling Price", "SellingPrice", GridColumn::Amount, 12, " ORDER BY SellingPrice ASC"},
        {"Wholesale", "WholesalePrice", GridColumn::Amount, 12, " ORDER BY Locator ASC"},
        {"Locator", "Locator", GridColumn::Text, 10, " ORDER BY Balance ASC"},
        {"Inventory", "Balance", GridColumn::Amount, 12},
    };
}

MasterDescriptor itemDescriptor() {
    return {
        .name = "frmItem",
        .caption = "Product Master File . . .",
        .master = itemMaster,
        .fields = itemFields(),
        .firstField = "txtDescription",
        .columns = itemColumns(),
        .defaultOrder = " ORDER BY ItemCode",
        .listedNone = "There are No Items in the Database...",
        .listed = "There are %1 Records in the Item Master File Database...",
        .countedNone = "System Found No Items in your Stock Inventory",
        .counted = "System Found %1 Items in your Stock Inventory",
        .allCaption = "Reload &All Items",
        .searchFields = itemSearchFields(),
        .initialField = "Description",
        .notLoaded = "Item Master File Database is not yet loaded. You cannot move item at the moment!",
    };
}
}  // namespace

frmItem::frmItem() : WalkingMaster(itemDescriptor()) {
    connect(fields().combo("txtSupplierCode"), &ComboBox::entered, this, [this] { findSupplier(); });
}

QString frmItem::drawKey(bool /*duplicate*/) {
    const QString code = NextItemCode(StoreConnection());
    fields().setText("txtItemCode", code);
    return code;
}

ItemEntry frmItem::entry() const {
    const auto typed = [this](const char* control) { return fields().text(control); };
    return {
        .ItemCode = typed("txtItemCode"),
        .Description = typed("txtDescription"),
        .Unit = typed("txtUnit"),
        .Locator = typed("txtLocator"),
        .Remarks = typed("txtRemarks"),
        .SupplierName = typed("txtSupplierCode"),
        .CostPrice = typed("txtCostPrice"),
        .SellingPrice = typed("txtSellingPrice"),
        .WholesalePrice = typed("txtWholesale"),
        .DateAquired = typed("txtDateAquired"),
        .OrderLevel = typed("txtReorder"),
        .InventoryBalance = typed("txtInventoryBalance"),
        .edit = edit(),
    };
}

Outcome frmItem::save(QString& key) {
    const ItemEntry typed = entry();
    const Outcome outcome = SaveItem(StoreConnection(), typed, mblnAddmode, key);
    if (mblnAddmode && isDone(outcome)) key = trim(typed.ItemCode);
    return outcome;
}

Outcome frmItem::remove(const QString& key) { return DeleteItem(StoreConnection(), key); }

void frmItem::findSupplier() {
    const QPointer<frmItem> screen(this);
    openContactFound(StoreConnection(), fields().text("txtSupplierCode"), "S",
                     [screen](const GridPicker::Row& row) {
                         if (!screen) return;
                         screen->fields().setText("txtSupplierCode", row("ContactName"));
                         screen->fields().box("txtUnit")->setFocus();
                     });
}
