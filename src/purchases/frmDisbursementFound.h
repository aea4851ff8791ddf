#pragma once
#include "platform/ui/grid_picker.h"

// The picker of purchase orders, "All Unpaid Purchase Order Journal...": every column of tblPurchaseMaster is
// there for the pick to read.
class frmDisbursementFound : public GridPicker {
    Q_OBJECT
  public:
    explicit frmDisbursementFound(Pick pick);
};

// Lists the purchase orders of a contact and shows the picker over the frame. Mode "A" lists those that are
// not paid, any other all; a search value, unless empty, is looked for in the number. A pick hands its row to
// the function and unloads the picker. A failing store shows its box and gives null; nothing is shown then.
frmDisbursementFound* openDisbursementFound(Connection& store, const QString& search,
                                            const QString& contactId, const QString& mode,
                                            GridPicker::Pick pick);

// What that picker lists.
DataGrid::Source disbursementFoundSource(const QString& search, const QString& contactId,
                                         const QString& mode);
