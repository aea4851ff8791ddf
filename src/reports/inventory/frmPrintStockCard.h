#pragma once
#include "reports/frame/print_screen.h"

// Prints the movements of one item.
class frmPrintStockCard : public PrintScreen {
    Q_OBJECT
  public:
    frmPrintStockCard();
};

// What keeps the stock card from being printed.
std::optional<Fault> stockCardFault(Connection& store, const PrintRequest& request);
