#include "masters/frmFound.h"

#include "platform/ui/boxes.h"
#include "platform/ui/screen_registry.h"

namespace {
const QList<GridColumn>& columns() {
    static const QList<GridColumn> list{
        {"Item Code", "ItemCode", GridColumn::Text, 14, " ORDER BY ItemCode ASC"},
        {"Description", "Description", GridColumn::Text, 60, " ORDER BY Description ASC"},
        {"Unit", "Unit", GridColumn::Text, 8, " ORDER BY Unit ASC"},
        {"Cost Price", "CostPrice", GridColumn::Amount, 13, " ORDER BY CostPrice ASC"},
        {"Selling Price", "SellingPrice", GridColumn::Amount, 13, " ORDER BY SellingPrice ASC"},
    };
    return list;
}

QString searchedColumn(const QString& kind) {
    if (kind == "D") return "Description";
    if (kind == "P") return "ItemCode";
    return {};
}
}  // namespace

frmFound::frmFound(Pick pick) : GridPicker("frmFound", "Item Search...", columns(), std::move(pick)) {}

DataGrid::Source itemFoundSource(const QString& search, const QString& kind) {
    DataGrid::Source source{"*", "tblItemMaster", "tblItemMaster", {}, " ORDER BY ItemCode"};
    const QString column = searchedColumn(kind);
    if (!search.isEmpty() && !column.isEmpty())
        source.where = {" WHERE " + column + " LIKE ?", {anywhere(search)}};
    return source;
}

frmFound* openItemFound(Connection& store, const QString& search, const QString& kind,
                        GridPicker::Pick pick) {
    auto picker = std::make_unique<frmFound>(std::move(pick));
    if (!guarded([&] { picker->list(store, itemFoundSource(search, kind), search); })) return nullptr;
    ScreenRegistry::instance().show(picker.get());
    return picker.release();
}
