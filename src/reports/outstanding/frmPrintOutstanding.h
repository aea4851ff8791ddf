#pragma once
#include "reports/frame/print_screen.h"

// Prints what is outstanding: kind "P" what the firm owes, any other what customers owe.
class frmPrintOutstanding : public PrintScreen {
    Q_OBJECT
  public:
    frmPrintOutstanding();
};
