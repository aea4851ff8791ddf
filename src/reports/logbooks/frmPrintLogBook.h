#pragma once
#include "reports/frame/print_screen.h"

// Prints the statements of account of customers, or, opened with kind "P", what was bought from suppliers and
// paid: of one contact, or of all.
class frmPrintLogBook : public PrintScreen {
    Q_OBJECT
  public:
    frmPrintLogBook();
};
