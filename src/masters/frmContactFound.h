#pragma once
#include "platform/ui/grid_picker.h"

// The contact picker, "Contact Search...": every column of tblContactMaster is there for the pick to read.
class frmContactFound : public GridPicker {
    Q_OBJECT
  public:
    explicit frmContactFound(Pick pick);
};

// Lists the contacts and shows the picker over the frame. Filter "C" lists customers, "S" suppliers, any
// other all; a search value, unless empty, is looked for in the name. A pick hands its row to the function
// and unloads the picker. A failing store shows its box and gives null; nothing is shown then.
frmContactFound* openContactFound(Connection& store, const QString& search, const QString& filter,
                                  GridPicker::Pick pick);

// What that picker lists.
DataGrid::Source contactFoundSource(const QString& search, const QString& filter);
