#pragma once
#include "reports/frame/print_screen.h"

// Lists the items with the value of their stock, in an order of one's choice.
class frmPrintInventory : public PrintScreen {
    Q_OBJECT
  public:
    frmPrintInventory();
};

// What keeps the list from being shown, and the list; none when no item is in it. It is asked for by the
// order's name and the period of the items' dates; any other name gives the order of those dates.
std::optional<Fault> inventoryFault(Connection& store, const PrintRequest& request);
std::optional<ReportJobParts> inventoryReport(Connection& store, const PrintRequest& request);
