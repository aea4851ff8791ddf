#pragma once
#include "reports/frame/print_screen.h"

// Prints the audit trail of one book.
class frmPrintAudit : public PrintScreen {
    Q_OBJECT
  public:
    frmPrintAudit();
};
