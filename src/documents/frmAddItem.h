#pragma once
#include "documents/line_popup.h"
#include "documents/order_owner.h"

class ComboBox;
class QLabel;
class QLayout;
class QToolButton;
class TextBox;

// The line dialog: adds or changes one line of an order, and stays open for the next.
class frmAddItem : public LinePopupOf<OrderLine> {
    Q_OBJECT
  public:
    explicit frmAddItem(OrderOwner& owner);

    void NewOrder() { startLine(); }
    bool CheckCode();

  protected:
    void clearFields() override;
    void showLine(const OrderLine& line) override;
    LineCheck checkTyped(const Answers& answers) override;
    OrderLine typedLine() const override;

  private:
    void makeFields();
    void layOut();
    QLayout* itemRow();
    QLayout* figures();
    void connectCode();
    void connectFigures();

    LineEntry entry() const;
    void showEntry(const LineEntry& entry);
    void compute(const std::function<void(LineEntry&)>& rule);
    void computeOrTell(const std::function<std::optional<Fault>(LineEntry&)>& rule);
    void leaveCode();
    bool takeQuantity();
    void leavePrice();
    void typeServed();
    void leaveUnit();

    void findItem(const QString& typed, const QString& kind);
    void takeItem(const QString& code, const QString& description);

    OrderOwner& owner_;
    LineEntry checked_;         // as the checks have left it
    bool hasQuantity_ = false;  // it came in front of the code

    ComboBox* cboItemCode;
    ComboBox* cboDescription;
    QToolButton* cmdSearch1;
    QToolButton* cmdSearch2;
    TextBox* txtCost;
    TextBox* txtDiscount;
    TextBox* txtNetPrice;
    TextBox* txtUnit;
    TextBox* txtOrder;
    TextBox* txtServe;
    TextBox* txtTotal;
    TextBox* txtInventory;
    QLabel* lblServe;
    QLabel* lblPrice;
};
