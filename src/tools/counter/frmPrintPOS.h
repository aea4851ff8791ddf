#pragma once
#include "platform/ui/child_screen.h"

class ComboBox;
class DateBox;
class PrintChoice;

// Chooses a cashier, or all of them, and a day, and prints the audit of its collections.
class frmPrintPOS : public ChildScreen {
    Q_OBJECT
  public:
    frmPrintPOS();

  public slots:
    void PrintRecord();

  private:
    void fillCashiers();

    ComboBox* cboCashier;
    DateBox* txtDate;
    PrintChoice* fraChoice;
};
