#pragma once
#include "documents/line_owner.h"
#include "platform/ui/child_screen.h"

class ComboBox;
class GridPicker;
class QLabel;
class QPushButton;
class QToolButton;
class TextBox;

// The line dialog: adds or changes one line of an order, and stays open for the next. It keeps the front
// until it is closed with its button.
class frmAddItem : public ChildScreen {
    Q_OBJECT
  public:
    explicit frmAddItem(LineOwner& owner);

    // Sets the dialog up for a line to add, or for this one, which has left the list.
    void NewOrder();
    void changeOrder(const OrderLine& line);
    bool CheckCode();
    // Goes without writing a line back: its order is no longer there.
    void abandon();
    void comeForward();

    bool mblnAddmode = true;
    bool WatchFocus = true;   // a loss of the front is refused
    bool SkipResave = false;  // closing does not write the line back

    bool queryUnload() override;

  protected:
    void activated() override;
    void deactivated() override;
    void unloading() override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void makeFields();
    void layOut();
    QWidget* itemRow();
    QWidget* figures();
    QWidget* buttons();
    void connectCode();
    void connectFigures();
    void connectButtons();

    LineEntry entry() const;
    void showEntry(const LineEntry& entry);
    void compute(const std::function<void(LineEntry&)>& rule);
    void computeOrTell(const std::function<std::optional<Fault>(LineEntry&)>& rule);
    void tell(const Fault& fault);
    void leaveCode();
    void typeServed();
    void leaveUnit();

    void findItem(const QString& typed, const QString& kind);
    void takeItem(const QString& code, const QString& description);

    void pressSave();
    enum class SaveResult { Added, Refused, Failed };  // failed: the store or the figures
    SaveResult save();
    void cancel();
    void closeDialog();

    LineOwner& owner_;
    OrderLine changed_;  // the line under change, as it left the list
    QPointer<GridPicker> picker_;
    bool telling_ = false;
    bool closing_ = false;  // by its own button, not by the control box

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
    QPushButton* cmdSave;
    QPushButton* cmdCancel;
};
