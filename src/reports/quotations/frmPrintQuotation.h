#pragma once
#include "reports/frame/print_screen.h"

// Prints a price list for a customer.
class frmPrintQuotation : public PrintScreen {
    Q_OBJECT
  public:
    frmPrintQuotation();
};
