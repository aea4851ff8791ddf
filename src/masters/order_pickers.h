#pragma once
#include "platform/ui/grid_picker.h"

// The pickers of one contact's orders: every column of the orders' table is there for the pick to read. A
// search value, unless empty, is looked for in the order's number. A pick hands its row to the function and
// unloads the picker. A failing store shows its box and gives null; nothing is shown then.

// frmSalesFound. Purposes "R" and "B" list the orders with a balance, any other all of the customer's.
GridPicker* openSalesFound(Connection& store, const QString& search, const QString& contactId,
                           const QString& purpose, GridPicker::Pick pick);
// frmDisbursementFound. Mode "A" lists the orders with a balance, any other all of the supplier's.
GridPicker* openDisbursementFound(Connection& store, const QString& search, const QString& contactId,
                                  const QString& mode, GridPicker::Pick pick);

// What those pickers list.
DataGrid::Source salesFoundSource(const QString& search, const QString& contactId, const QString& purpose);
DataGrid::Source disbursementFoundSource(const QString& search, const QString& contactId,
                                         const QString& mode);
