#include "reports/inventory/frmPrintInventory.h"

#include "platform/parsing.h"
#include "reports/lists/prtItemList.h"

#include <QHash>

static const PrintBook& book() {
    static const PrintBook inventory{
        .screen = "frmPrintInventory",
        .caption = "Print Report . . .",
        .selectionFrame = "Please Select Sort Parameter :",
        .selections = {"Item Description", "Supplier Name", "Warehouse Locator", "Aquisition Date",
                       "Inventory Balance"},
        .opensOn = 3,
        .ticks = {{"chkZero", "Show Inventory With Zero Balance Only", &PrintRequest::zeroOnly}},
        .periodFrame = "Aquisition Date Range :",
        .excluded = "Excluded",
        .printsFromPreview = true,
        .noFile = exclamation("No File!", "Please specify a valid Filename and Location!"),
        .check = inventoryFault,
        .report = inventoryReport};
    return inventory;
}

frmPrintInventory::frmPrintInventory() : PrintScreen(book()) {}

std::optional<Fault> inventoryFault(Connection&, const PrintRequest& request) {
    if (trim(request.selection).isEmpty())
        return errorFault("Please Select a Journal to Print!", "cboSelection");
    return periodFault(request, invalidDateValue);
}

static QString orderOf(const QString& selection) {
    static const QHash<QString, QString> columns{{"Item Description", "Description"},
                                                 {"Supplier Name", "ContactName"},
                                                 {"Warehouse Locator", "Locator"},
                                                 {"Inventory Balance", "Balance"}};
    return QString(" ORDER BY %1 ASC, ItemCode ASC").arg(columns.value(trim(selection), "DateAquired"));
}

std::optional<ReportJobParts> inventoryReport(Connection& store, const PrintRequest& request) {
    const Sql onHand = request.zeroOnly ? "Balance <= 0" : "";
    return itemListReport(store,
                          Sql("SELECT tblItemMaster.*, tblContactMaster.ContactName FROM tblItemMaster LEFT "
                              "OUTER JOIN tblContactMaster ON tblItemMaster.SupplierCode = "
                              "tblContactMaster.ContactID") +
                              whereAll({inPeriod("DateAquired", periodOf(request)), onHand}) +
                              Sql(orderOf(request.selection)));
}
