#include "reports/inventory/prtReorder.h"

#include "reports/frame/list_report.h"
#include "reports/frame/report_query.h"

const ReportLayout& prtReorder() {
    using enum ReportColumn::Kind;
    static const ReportLayout layout =
        listLayout({"prtReorder",
                    "Inventory Reorder Report...",
                    letterPortrait(750, 750, 10680),
                    {companyLine(), titleLine("Item Re-Order Report"), runDateLine()},
                    1080,
                    {{"Item Code", 90, 1170, "ItemCode"},
                     {"Description", 1350, 2520, "Description"},
                     {"Supplier", 3960, 1980, "ContactName"},
                     {"Order Level", 6030, 1080, "OrderLevel", Amount},
                     {"Inventory", 7200, 1080, "Balance", Amount},
                     {"Unit", 8370, 810, "Unit", Centred},
                     {"Last Cost Price", 9270, 1350, "CostPrice", Amount}}});
    return layout;
}

Sql itemsToReorder() {
    return "SELECT tblItemMaster.*, tblContactMaster.ContactName FROM tblContactMaster RIGHT OUTER JOIN "
           "tblItemMaster ON tblContactMaster.ContactID = tblItemMaster.SupplierCode WHERE "
           "tblItemMaster.Balance < tblItemMaster.OrderLevel ORDER BY tblItemMaster.Description ASC";
}

std::optional<ReportJobParts> reorderReport(Connection& store) {
    return reportOfQuery(store, prtReorder(), itemsToReorder(), {}, companyTexts(store));
}
