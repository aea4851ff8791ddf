#include "reports/lists/prtItemList.h"

#include "books/stock_valuation.h"
#include "foundation/shared_routines.h"
#include "platform/clock.h"
#include "platform/masks.h"
#include "reports/frame/report_query.h"
#include "reports/lists/plain_list.h"

namespace {
constexpr TextStyle rightBold{Typeface::Verdana, 8, true, Qt::AlignRight};

const ReportLayout& prtItemList() {
    static const ReportLayout layout = [] {
        auto sections = plainList::sections(
            "Item Inventory Listing", 11055,
            {{"Code", 90, 900, "ItemCode", "ItemCode"},
             {"Description", 1080, 2340, "Description", "Description"},
             {"Unit", 3510, 720, "Unit", "Unit"},
             {"Cost Price", 4320, 1080, "CostPrice", "CostPrice", mask::amount, true},
             {"Aquired", 5490, 990, "DateAquired", "DateAquired", mask::date},
             {"Order Level", 6570, 1170, "OrderLevel", "OrderLevel", mask::signedAmount, true},
             {"Inventory", 7830, 1350, "Balance", "Balance", mask::signedAmount, true},
             {"Inventory Amount", 9270, 1710, "InventoryAmount", "", mask::amount, true}});
        sections +=
            section(SectionKind::ReportFooter, 360,
                    {label("lblGrand", "Total Inventory Amount = ", 5490, 60, 3690, 225, rightBold),
                     field("txtGrandInventoryAmount", "", 9270, 60, 1710, 225, rightBold, mask::amount)});
        return ReportLayout{"prtItemList", "Item Listing...", letterPortrait(600, 500, 11055), sections};
    }();
    return layout;
}

Currency stockValue(Connection& store, const QString& item) {
    Boxes failures;
    const QDate first = std::min(GetFirstPurchaseDate(store), GetFirstSalesDate(store));
    const QDate last = std::max(GetLastPurchaseDate(store), GetLastSalesDate(store));
    return ValuationCost(store, first, last, item, failures);
}
}  // namespace

std::optional<ReportJobParts> itemListReport(Connection& store, const Sql& query, const QString& count) {
    const auto total = std::make_shared<Currency>();
    const auto line = [&store, total](const ReportSource& row, SectionFields& fields) {
        const Currency value = stockValue(store, row.text("ItemCode"));
        *total += value;
        fields.setText("txtInventoryAmount", formatNumber(value, mask::amount));
    };
    const auto foot = [total](const ReportSource&, SectionFields& fields) {
        fields.setText("txtGrandInventoryAmount", formatNumber(*total, mask::amount));
    };
    return reportOfQuery(store, prtItemList(), query,
                         {{on(SectionKind::PageHeader), plainList::headingEvent(store, count)},
                          {on(SectionKind::Detail), line},
                          {on(SectionKind::ReportFooter), foot}});
}
