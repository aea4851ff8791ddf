#include "reports/quotations/prtSalesQuota.h"

#include "foundation/shared_routines.h"
#include "reports/frame/list_report.h"

namespace {
// The names of an item once for each line, instead of once for each sale.
constexpr const char* rows =
    "SELECT quota.*, tblItemMaster.Description AS Product, tblItemMaster.Unit FROM (SELECT "
    "tblContactMaster.ContactName, tblSalesDetails.ItemID, SUM(tblSalesDetails.Total) AS Sales, "
    "SUM(tblSalesDetails.Served) AS Qty FROM (tblContactMaster INNER JOIN tblSalesMaster ON "
    "tblContactMaster.ContactID = tblSalesMaster.ContactNo) INNER JOIN tblSalesDetails ON "
    "tblSalesMaster.RefNo = tblSalesDetails.Reference";
constexpr const char* order =
    " GROUP BY tblContactMaster.ContactName, tblSalesDetails.ItemID) AS quota LEFT JOIN tblItemMaster ON "
    "tblItemMaster.ItemCode = quota.ItemID ORDER BY quota.ContactName, quota.ItemID";

Fault unknown(const char* text, const char* field) { return {exclamation("Does not exist!", text), field}; }

QList<Sql> conditionsOf(Connection& store, const PrintRequest& request) {
    QList<Sql> conditions;
    if (!request.description.isEmpty())
        conditions += Sql("ItemID = ?", {LookupField(store, "ItemCode", "tblItemMaster", "Description",
                                                     request.description, LookupMode::PrimaryKey)});
    if (!request.contact.isEmpty()) conditions += Sql("tblContactMaster.ContactName = ?", {request.contact});
    return conditions;
}
}  // namespace

const ReportLayout& prtSalesQuota() {
    using enum ReportColumn::Kind;
    static const ReportLayout layout =
        listLayout({.name = "prtSalesQuota",
                    .caption = "Sales Quota Report...",
                    .page = letterPortrait(650, 500, 10875),
                    .heading = {companyLine(), titleLine("Customer Sales Quota Report"), rangeLine()},
                    .headsTop = 1080,
                    .columns = {{"Customer Name", 90, 2880, "ContactName"},
                                {"Product", 3060, 2610, "Product"},
                                {"Total Quantity", 5760, 1620, "Qty", Number},
                                {"Unit", 7470, 1170, "Unit"},
                                {"Total Sales Amount", 8730, 2070, "Sales", Amount}}});
    return layout;
}

std::optional<Fault> salesQuotaFault(Connection& store, const PrintRequest& request) {
    if (!request.contact.isEmpty() && !RecordFound(store, "tblContactMaster", "ContactName", request.contact))
        return unknown("Customer Does Not Exist, Please Select Proper Customer to Generate Report...",
                       "cboCustomer");
    if (!request.description.isEmpty() &&
        !RecordFound(store, "tblItemMaster", "Description", request.description))
        return unknown("Product Does Not Exist, Please Select Proper Product to Generate Report...",
                       "txtDescription");
    return periodFault(request, invalidDateValue);
}

std::optional<ReportJobParts> salesQuotaReport(Connection& store, const PrintRequest& request) {
    return runOfPeriod(store,
                       {.layout = prtSalesQuota(),
                        .rows = rows,
                        .dateColumn = "tblSalesMaster.RefDate",
                        .order = order,
                        .conditions = conditionsOf(store, request)},
                       periodOf(request));
}
