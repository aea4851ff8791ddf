#include "reports/lists/prtItemList.h"

#include "books/balances.h"
#include "books/stock_valuation.h"
#include "platform/ui/boxes.h"
#include "platform/ui/frmStatus.h"
#include "reports/frame/list_report.h"
#include "reports/frame/report_query.h"

const ReportLayout& prtItemList() {
    using enum ReportColumn::Kind;
    static const ReportLayout layout =
        listLayout({.name = "prtItemList",
                    .caption = "Item Listing...",
                    .page = letterPortrait(600, 500, 11055),
                    .heading = {companyLine(), titleLine("Item Inventory Listing"), addressLine(),
                                phoneLine(), runDateLine()},
                    .headsTop = 1620,
                    .columns = {{"Code", 90, 900, "ItemCode", Code},
                                {"Description", 1080, 2340, "Description"},
                                {"Unit", 3510, 720, "Unit"},
                                {"Cost Price", 4320, 1080, "CostPrice", Amount},
                                {"Aquired", 5490, 990, "DateAquired", Date},
                                {"Order Level", 6570, 1170, "OrderLevel", SignedAmount},
                                {"Inventory", 7830, 1350, "Balance", SignedAmount},
                                {"Inventory Amount", 9270, 1710, "txtInventoryAmount", Amount,
                                 "txtGrandInventoryAmount"}},
                    .total = "Total Inventory Amount = ",
                    .totalLeft = 6480,
                    .heights = {.heading = 1980},
                    .beside = {countLine(11055)}});
    return layout;
}

// The stock is summed up and the ledger costed anew: what was dropped from a document since is neither on
// hand nor worth anything here.
static KeyedFigures stockValues(Connection& store) {
    frmStatus status;
    RecomputeInventoryBalances(store, status);
    RecomputeStockValuation(store, status);
    Boxes failures;
    const KeyedFigures values = StockValues(store, failures);
    showBoxes(failures);
    return values;
}

std::optional<ReportJobParts> itemListReport(Connection& store, const Sql& query, const QString& count) {
    RunTexts texts = companyTexts(store);
    texts.labels.insert("lblCount", count);
    const auto line = [values = stockValues(store)](const ReportSource& row, SectionFields& fields) {
        fields.setFigure("txtInventoryAmount", values.of(row.key("ItemCode")));
    };
    return reportOfQuery(store, prtItemList(), query, {{on(SectionKind::Detail), line}}, texts);
}
