#pragma once
#include "reports/frame/print_screen.h"

// Prints what customers bought: one customer or all, one product or all, in a period.
class frmPrintSalesQuota : public PrintScreen {
    Q_OBJECT
  public:
    frmPrintSalesQuota();
};
