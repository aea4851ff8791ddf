#pragma once
#include "platform/currency.h"
#include "platform/ui/child_screen.h"

class DataGrid;

// A popup that says what a customer owes; any key closes it, and so does going elsewhere.
class frmReceiptAnnouce : public ChildScreen {
    Q_OBJECT
  public:
    frmReceiptAnnouce(const QString& customer, Currency balance);

  protected:
    void deactivated() override { unload(); }
    void keyPressEvent(QKeyEvent* event) override;
};

// The popup about the customer of the receipt that the grid stands on, with the balance of this moment.
ChildScreen* announceBalance(const DataGrid& grid);
