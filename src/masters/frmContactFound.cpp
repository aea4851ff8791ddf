#include "masters/frmContactFound.h"

#include "platform/ui/boxes.h"
#include "platform/ui/screen_registry.h"

namespace {
const QList<GridColumn>& columns() {
    static const QList<GridColumn> list{
        {"Name", "ContactName", GridColumn::Text, 46, " ORDER BY ContactName ASC"},
        {"Address", "Address", GridColumn::Text, 60, " ORDER BY Address ASC"},
        {"Tel. No.", "TelNo", GridColumn::Text, 24, " ORDER BY TelNo ASC"},
        {"Term", "Terms", GridColumn::Count, 8, " ORDER BY Terms ASC"},
    };
    return list;
}

QString typeCondition(const QString& filter) {
    if (filter == "C") return "IsCustomer = True";
    if (filter == "S") return "IsSupplier = True";
    return {};
}
}  // namespace

frmContactFound::frmContactFound(Pick pick)
    : GridPicker("frmContactFound", "Contact Search...", columns(), std::move(pick)) {}

DataGrid::Source contactFoundSource(const QString& search, const QString& filter) {
    DataGrid::Source source{"*", "tblContactMaster", "tblContactMaster", {}, " ORDER BY ContactName"};
    const QString type = typeCondition(filter);
    if (!type.isEmpty()) source.where = " WHERE " + type;
    if (!search.isEmpty())
        source.where += Sql{source.where.isEmpty() ? " WHERE ContactName LIKE ?" : " AND ContactName LIKE ?",
                            {anywhere(search)}};
    return source;
}

frmContactFound* openContactFound(Connection& store, const QString& search, const QString& filter,
                                  GridPicker::Pick pick) {
    auto picker = std::make_unique<frmContactFound>(std::move(pick));
    if (!guarded([&] { picker->list(store, contactFoundSource(search, filter), search); })) return nullptr;
    ScreenRegistry::instance().show(picker.get());
    return picker.release();
}
