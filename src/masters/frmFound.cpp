#include "masters/frmFound.h"

#include "platform/ui/boxes.h"
#include "platform/ui/screen_registry.h"

namespace {
const QList<GridColumn>& columns() {
    static const QList<GridColumn> list{
        {"Item Code", "ItemCode", GridColumn::Text, 14},
        {"Description", "Description", GridColumn::Text, 60},
        {"Unit", "Unit", GridColumn::Text, 8},
        {"Cost Price", "CostPrice", GridColumn::Amount, 13},
        {"Selling Price", "SellingPrice", GridColumn::Amount, 13},
    };
    return list;
}

const QStringList headerOrders{" ORDER BY ItemCode ASC", " ORDER BY Description ASC", " ORDER BY Unit ASC",
                               " ORDER BY CostPrice ASC", " ORDER BY SellingPrice ASC"};

QString searchedColumn(const QString& kind) {
    if (kind == "D") return "Description";
    if (kind == "P") return "ItemCode";
    return {};
}
}  // namespace

frmFound::frmFound(Pick pick)
    : GridPicker("frmFound", "Item Search...", columns(), headerOrders, std::move(pick)) {}

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
    if (!guarded([&] { picker->list(store, itemFoundSource(search, kind)); })) return nullptr;
    ScreenRegistry::instance().show(picker.get());
    return picker.release();
}
