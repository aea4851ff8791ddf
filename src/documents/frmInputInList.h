#pragma once
#include "documents/order_owner.h"
#include "platform/ui/child_screen.h"

class QLabel;
class TextBox;

// "Order Update...": changes only the served, or delivered, quantity of one line. Enter takes the value over,
// Esc and the loss of the front close it with nothing changed.
class frmInputInList : public ChildScreen {
    Q_OBJECT
  public:
    frmInputInList(OrderOwner& owner, int row);
    QString ItemCode;

  protected:
    void activated() override;
    void deactivated() override;

  private:
    void layOut();
    void commit();

    OrderOwner& owner_;
    int row_;
    QLabel* lblTitle;
    QLabel* lblServed;
    TextBox* txtOrder;
    TextBox* txtValue;
    TextBox* txtPrice;
};
