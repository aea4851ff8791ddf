#pragma once
#include "platform/ui/grid_picker.h"

// The item picker, "Item Search...": every column of tblItemMaster is there for the pick to read.
class frmFound : public GridPicker {
    Q_OBJECT
  public:
    explicit frmFound(Pick pick);
};

// Lists the items and shows the picker over the frame. Kind "D" searches the description, "P" the item code;
// an empty search value, or any other kind, lists all items. A pick hands its row to the function and unloads
// the picker. A failing store shows its box and gives null; nothing is shown then.
frmFound* openItemFound(Connection& store, const QString& search, const QString& kind, GridPicker::Pick pick);

// What that picker lists.
DataGrid::Source itemFoundSource(const QString& search, const QString& kind);
