#pragma once
#include "reports/frame/print_screen.h"

// Prints the period reports of the journal that it is opened with: "S", "R", "P" or "D", or those of the
// profit of sales: "PROFIT". Without a kind it prints sales.
class frmPrintTransactions : public PrintScreen {
    Q_OBJECT
  public:
    frmPrintTransactions();
    bool receive(const ScreenArguments& arguments) override;
};
