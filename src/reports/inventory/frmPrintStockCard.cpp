#include "reports/inventory/frmPrintStockCard.h"

#include "foundation/shared_routines.h"
#include "platform/clock.h"
#include "platform/masks.h"
#include "reports/inventory/prtStockCard.h"

static const PrintBook& book() {
    static const PrintBook stockCard{
        .screen = "frmPrintStockCard",
        .caption = "Print Item Stock Card",
        .fields = {{.name = "cboItem",
                    .caption = "&Item Code :",
                    .typed = &PrintRequest::item,
                    .picker = PickedFrom::ItemCodes,
                    .search = "cmdSearch"},
                   {.name = "cboDescription",
                    .caption = "&Description :",
                    .picker = PickedFrom::ItemDescriptions,
                    .search = "cmdSearchDescription"},
                   {.name = "txtDate",
                    .caption = "Cut-Off Date :",
                    .shown = [] { return formatDate(Clock::today(), "mmmm dd, yyyy"); }}},
        .periodFrame = "Date Range :",
        .excluded = "Display All",
        .check = stockCardFault,
        .report = stockCardReport};
    return stockCard;
}

frmPrintStockCard::frmPrintStockCard() : PrintScreen(book()) {}

std::optional<Fault> stockCardFault(Connection& store, const PrintRequest& request) {
    if (request.item.isEmpty()) return errorFault("Please Select an Item to Generate Stock Card!", "cboItem");
    if (!RecordFound(store, "tblItemMaster", "ItemCode", request.item))
        return Fault{
            exclamation("Does not exist!", "Item Does Not Exist, Please Add This to Item Master File..."),
            "cboItem"};
    if (const auto fault = periodFault(request, invalidDateValue)) return fault;
    const auto period = periodOf(request);
    if (period && period->from > period->to)
        return errorFault("Date From Should Not be Greater than Date To!", "txtFrom");
    return {};
}
