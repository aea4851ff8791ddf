#include "purchases/frmDisbursementFound.h"

#include "platform/ui/boxes.h"
#include "platform/ui/screen_registry.h"

static const QList<GridColumn>& columns() {
    static const QList<GridColumn> list{
        {"P.O. No.", "PurchaseNo", GridColumn::Text, 18, " ORDER BY PurchaseNo ASC"},
        {"P.O. Date", "PurchaseDate", GridColumn::Date, 13, " ORDER BY PurchaseDate ASC"},
        {"Total Amount", "PurchaseAmount", GridColumn::Amount, 16, " ORDER BY PurchaseAmount ASC"},
        {"Balance", "Balance", GridColumn::Amount, 16, " ORDER BY Balance ASC"},
        {"Remarks", "Remarks", GridColumn::Text, 50, " ORDER BY Remarks ASC"},
    };
    return list;
}

frmDisbursementFound::frmDisbursementFound(Pick pick)
    : GridPicker("frmDisbursementFound", "All Unpaid Purchase Order Journal...", columns(), std::move(pick)) {
}

DataGrid::Source disbursementFoundSource(const QString& search, const QString& contactId,
                                         const QString& mode) {
    DataGrid::Source source{
        "*", "tblPurchaseMaster", "tblPurchaseMaster", {" WHERE ContactNo = ?", {contactId}}, {}};
    if (mode == "A") source.where += " AND Balance <> 0";
    if (!search.isEmpty()) source.where += Sql{" AND PurchaseNo LIKE ?", {anywhere(search)}};
    return source;
}

frmDisbursementFound* openDisbursementFound(Connection& store, const QString& search,
                                            const QString& contactId, const QString& mode,
                                            GridPicker::Pick pick) {
    auto picker = std::make_unique<frmDisbursementFound>(std::move(pick));
    if (!guarded([&] { picker->list(store, disbursementFoundSource(search, contactId, mode)); }))
        return nullptr;
    ScreenRegistry::instance().show(picker.get());
    return picker.release();
}
