#include "reports/inventory/prtReorder.h"

#include "foundation/shared_routines.h"
#include "platform/masks.h"
#include "reports/frame/list_parts.h"
#include "reports/frame/report_query.h"

namespace {
constexpr TextStyle centredHead{Typeface::Verdana, 8, true, Qt::AlignHCenter};
constexpr TextStyle numberHead{Typeface::Verdana, 8, true, Qt::AlignRight};

ReportSection heading() {
    return section(SectionKind::PageHeader, 1350,
                   {label("lblCompany", "", 90, 90, 10530, 270, bold(10)),
                    label("lblTitle", "Item Re-Order Report", 90, 360, 10530, 270, bold()),
                    label("lblRunDate", "", 90, 630, 10530, 225),
                    label("lblItemCode", "Item Code", 90, 1080, 1170, 225, bold()),
                    label("lblDescription", "Description", 1350, 1080, 2520, 225, bold()),
                    label("lblSupplier", "Supplier", 3960, 1080, 1980, 225, bold()),
                    label("lblOrderLevel", "Order Level", 6030, 1080, 1080, 225, numberHead),
                    label("lblInventory", "Inventory", 7200, 1080, 1080, 225, numberHead),
                    label("lblUnit", "Unit", 8370, 1080, 810, 225, centredHead),
                    label("lblLastCost", "Last Cost Price", 9270, 1080, 1350, 225, numberHead)});
}

ReportSection itemLine() {
    return section(SectionKind::Detail, 285,
                   {growing(field("txtItemCode", "ItemCode", 90, 30, 1170, 225)),
                    growing(field("txtDescription", "Description", 1350, 30, 2520, 225)),
                    growing(field("txtSupplier", "ContactName", 3960, 30, 1980, 225)),
                    field("txtOrderLevel", "OrderLevel", 6030, 30, 1080, 225, rightAligned(), mask::amount),
                    field("txtBalance", "Balance", 7200, 30, 1080, 225, rightAligned(), mask::amount),
                    field("txtUnit", "Unit", 8370, 30, 810, 225, centred()),
                    field("txtCostPrice", "CostPrice", 9270, 30, 1350, 225, rightAligned(), mask::amount)});
}
}  // namespace

const ReportLayout& prtReorder() {
    static const ReportLayout layout{"prtReorder",
                                     "Inventory Reorder Report...",
                                     letterPortrait(750, 750, 10680),
                                     {heading(), itemLine(), pageNumberFooter(90)}};
    return layout;
}

Sql itemsToReorder() {
    return "SELECT tblItemMaster.*, tblContactMaster.ContactName FROM tblContactMaster RIGHT OUTER JOIN "
           "tblItemMaster ON tblContactMaster.ContactID = tblItemMaster.SupplierCode WHERE "
           "tblItemMaster.Balance < tblItemMaster.OrderLevel ORDER BY tblItemMaster.Description ASC";
}

std::optional<ReportJobParts> reorderReport(Connection& store) {
    const auto head = [&store](const ReportSource&, SectionFields& fields) {
        fields.setText("lblCompany", GetCompanyName(store));
        fields.setText("lblRunDate", runDateText());
    };
    return reportOfQuery(
        store, prtReorder(), itemsToReorder(),
        {{on(SectionKind::PageHeader), head}, {on(SectionKind::PageFooter), pageNumberEvent()}});
}
