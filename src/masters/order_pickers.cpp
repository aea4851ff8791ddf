#include "masters/order_pickers.h"

#include "platform/ui/boxes.h"
#include "platform/ui/screen_registry.h"

namespace {
// What the two pickers differ in.
struct OrderPicker {
    const char* name;
    const char* caption;
    const char* table;
    QList<GridColumn> columns;  // the first is the order's number
    QString order;
    QStringList openPurposes;  // that list only what has a balance
};

const OrderPicker& salesPicker() {
    static const OrderPicker picker{
        .name = "frmSalesFound",
        .caption = "All Unpaid Sales Order Journal...",
        .table = "tblSalesMaster",
        .columns = {{"D.R. No.", "RefNo", GridColumn::Text, 16, " ORDER BY RefNo ASC"},
                    {"D.R. Date", "RefDate", GridColumn::Date, 11, " ORDER BY RefDate ASC"},
                    {"Total Amount", "TotalAmount", GridColumn::Amount, 15, " ORDER BY TotalAmount ASC"},
                    {"Balance", "Balance", GridColumn::Amount, 15, " ORDER BY Balance ASC"},
                    {"Remarks", "Remarks", GridColumn::Text, 50, " ORDER BY Remarks ASC"}},
        .order = " ORDER BY RefDate",
        .openPurposes = {"R", "B"}};
    return picker;
}

const OrderPicker& purchasePicker() {
    static const OrderPicker picker{
        .name = "frmDisbursementFound",
        .caption = "All Unpaid Purchase Order Journal...",
        .table = "tblPurchaseMaster",
        .columns = {{"P.O. No.", "PurchaseNo", GridColumn::Text, 16, " ORDER BY PurchaseNo ASC"},
                    {"P.O. Date", "PurchaseDate", GridColumn::Date, 11, " ORDER BY PurchaseDate ASC"},
                    {"Amount", "PurchaseAmount", GridColumn::Amount, 15, " ORDER BY PurchaseAmount ASC"},
                    {"Balance", "Balance", GridColumn::Amount, 15, " ORDER BY Balance ASC"},
                    {"Remarks", "Remarks", GridColumn::Text, 50, " ORDER BY Remarks ASC"}},
        .order = {},
        .openPurposes = {"A"}};
    return picker;
}

DataGrid::Source sourceOf(const OrderPicker& picker, const QString& search, const QString& contactId,
                          const QString& purpose) {
    DataGrid::Source source{
        "*", picker.table, picker.table, {" WHERE ContactNo = ?", {contactId}}, picker.order};
    if (picker.openPurposes.contains(purpose)) source.where += " AND Balance <> 0";
    if (!search.isEmpty())
        source.where += Sql{" AND " + picker.columns.first().column + " LIKE ?", {anywhere(search)}};
    return source;
}

GridPicker* open(Connection& store, const OrderPicker& picker, const DataGrid::Source& source,
                 const QString& search, GridPicker::Pick pick) {
    auto popup = std::make_unique<GridPicker>(picker.name, picker.caption, picker.columns, std::move(pick));
    if (!guarded([&] { popup->list(store, source, search); })) return nullptr;
    ScreenRegistry::instance().show(popup.get());
    return popup.release();
}
}  // namespace

GridPicker* openSalesFound(Connection& store, const QString& search, const QString& contactId,
                           const QString& purpose, GridPicker::Pick pick) {
    return open(store, salesPicker(), salesFoundSource(search, contactId, purpose), search, std::move(pick));
}

GridPicker* openDisbursementFound(Connection& store, const QString& search, const QString& contactId,
                                  const QString& mode, GridPicker::Pick pick) {
    return open(store, purchasePicker(), disbursementFoundSource(search, contactId, mode), search,
                std::move(pick));
}

DataGrid::Source salesFoundSource(const QString& search, const QString& contactId, const QString& purpose) {
    return sourceOf(salesPicker(), search, contactId, purpose);
}

DataGrid::Source disbursementFoundSource(const QString& search, const QString& contactId,
                                         const QString& mode) {
    return sourceOf(purchasePicker(), search, contactId, mode);
}
