#include "reports/inventory/prtStockCard.h"

#include "books/item_costs.h"
#include "books/stock_valuation.h"
#include "foundation/shared_routines.h"
#include "platform/masks.h"
#include "platform/progress_scope.h"
#include "platform/store/bulk.h"
#include "platform/ui/boxes.h"
#include "platform/ui/frmStatus.h"
#include "reports/frame/list_report.h"
#include "reports/profitability/profitability_figures.h"

namespace {
constexpr const char* processing = "System is Processing Stock Card...";

using Span = std::optional<Period>;

// Below the totals: what is left, what it is worth, and what the sales cost.
QList<ReportControl> footings() {
    const auto words = [](const char* name, const char* text, int top) {
        return label(name, text, 90, top, 2700, 225, bold());
    };
    return {
        words("lblInventory", "Remaining Inventory", 90),
        field("txtInventory", "Balance", 2880, 90, 1710, 225, rightAligned()),
        words("lblInventoryAmount", "Total Inventory Amount", 360),
        field("txtInventoryAmount", "", 2880, 360, 1710, 225, rightAligned(), mask::amount),
        words("lblCostOfGoods", "Cost of Goods Sold", 630),
        summing(field("txtCostOfGoods", "SalesCost", 2880, 630, 1710, 225, rightAligned(), mask::amount))};
}

ReportLayout withFootings(ReportLayout layout) {
    for (ReportSection& each : layout.sections)
        if (each.kind == SectionKind::ReportFooter) each.controls += footings();
    return layout;
}

// The first figure of each document that the statement finds.
KeyedFigures firstOfDocuments(Connection& store, const Sql& figures) {
    KeyedFigures first;
    for (BulkReader row(store, figures); row.next();) first.giveFirst(row.bytes(0), row.currency(1));
    return first;
}

// Whatever their book: told to look for sales, the engine walks the sales of all items.
Sql ofDocuments(const char* figures, const QString& item, const Span& period) {
    Sql documents(QString("%1 IN (SELECT Reference FROM tblStockValuation WHERE ItemCode = ?").arg(figures),
                  {item});
    if (period) documents += Sql(" AND ") + inPeriod("TransDate", period);
    return documents + Sql(")");
}

FormatEvent movement(Connection& store, const QString& item, const Span& period) {
    return [charged = chargedOnSales(store, item, period)](const ReportSource& row, SectionFields& fields) {
        const Currency out = row.currency("StockOut");
        const QByteArray sale = row.key("Reference");
        const bool isSale = row.text("BookID").compare("S", Qt::CaseInsensitive) == 0;
        const Currency price =
            isSale && charged.contains(sale) ? perUnit(charged.of(sale), out) : row.currency("OutPrice");
        fields.setFigure("txtSelling", price);
        fields.setFigure("txtCostAmount", row.currency("StockIn") * row.currency("InPrice"));
        fields.setFigure("txtSellingAmount", out * price);
    };
}

Currency valueAtEnd(Connection& store, const QString& item, const Span& period) {
    Boxes failures;
    const Currency value =
        period ? StockValueAt(store, period->to, item, failures) : StockValue(store, item, failures);
    showBoxes(failures);
    return value;
}

FormatEvent foot(Connection& store, const QString& item, const Span& period) {
    return [value = valueAtEnd(store, item, period)](const ReportSource&, SectionFields& fields) {
        fields.setFigure("txtInventoryAmount", value);
    };
}

QString titleOf(Connection& store, const QString& code) {
    const Recordset item =
        store.execute({"SELECT ItemCode, Description FROM tblItemMaster WHERE ItemCode = ?", {code}});
    return item.eof() ? code : item.trimmed("ItemCode") + "   " + item.trimmed("Description");
}
}  // namespace

KeyedFigures chargedOnSales(Connection& store, const QString& item, const Span& period) {
    const KeyedFigures percents = firstOfDocuments(
        store,
        ofDocuments("SELECT Reference, Discount FROM tblReceiptDetails WHERE Reference", item, period) +
            Sql(" ORDER BY ZevRef"));
    KeyedFigures charged;
    for (BulkReader line(store,
                         Sql("SELECT Reference, Total FROM tblSalesDetails WHERE ItemID = ? AND ", {item}) +
                             ofDocuments("Reference", item, period));
         line.next();)
        charged.giveFirst(line.bytes(0), NetOfPercent(percents.of(line.bytes(0)), line.currency(1)));
    return charged;
}

const ReportLayout& prtStockCard() {
    using enum ReportColumn::Kind;
    static const ReportLayout layout = withFootings(listLayout(
        {.name = "prtStockCard",
         .caption = "Stock Card...",
         .page = letterLandscape(750, 650, 14175),
         .heading = {titleLine("Stock Card"), label("txtItem", "", 0, 0, 0, 225, bold()), runDateLine()},
         .headsTop = 990,
         .columns = {{"", 90, 360, "BookID"},
                     {"Reference", 450, 1350, "Reference"},
                     {"Date", 1890, 900, "TransDate", Date},
                     {"Particulars", 2880, 2880, "ContactName"},
                     {"Stock In", 5850, 900, "StockIn", Number},
                     {"Stock Out", 6840, 900, "StockOut", Number},
                     {"Running Balance", 7830, 1080, "Balance", Number},
                     {"Cost Price", 9000, 1080, "InPrice", Price},
                     {"Selling Price", 10170, 1080, "txtSelling", Price},
                     {"Cost Amount", 11340, 1350, "txtCostAmount", Amount, "txtTotalCost"},
                     {"Selling Amount", 12780, 1350, "txtSellingAmount", Amount, "txtTotalSelling"}},
         .total = "Totals =",
         .heights = {.total = 945, .heads = 450}}));
    return layout;
}

std::optional<ReportJobParts> stockCardReport(Connection& store, const PrintRequest& request) {
    frmStatus status;
    const ProgressScope scope(status, processing, 0);
    RecomputeItemCosts(store, request.item);
    const Span period = periodOf(request);
    return runOfPeriod(store,
                       {.layout = prtStockCard(),
                        .rows = "SELECT tblStockValuation.*, tblContactMaster.ContactName FROM "
                                "tblStockValuation LEFT OUTER JOIN tblContactMaster ON "
                                "tblStockValuation.Contact = tblContactMaster.ContactID",
                        .dateColumn = "TransDate",
                        .order = " ORDER BY TransDate, BookID, ZevRef",
                        .events = {{on(SectionKind::Detail), movement(store, request.item, period)},
                                   {on(SectionKind::ReportFooter), foot(store, request.item, period)}},
                        .labels = {{"txtItem", titleOf(store, request.item)}},
                        .conditions = {{"ItemCode = ?", {request.item}}},
                        .processing = processing},
                       period);
}
