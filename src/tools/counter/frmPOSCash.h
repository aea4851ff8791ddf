#pragma once
#include "platform/store/connection.h"
#include "platform/ui/child_screen.h"

class ComboBox;
class DataGrid;
class QGroupBox;
class TextBox;

// What each cashier begins a day with: the record in the top half, the grid of all below it.
class frmPOSCash : public RecordScreen {
    Q_OBJECT
  public:
    frmPOSCash();
    QSize sizeHint() const override;

  public slots:
    void NewRecord();
    void EditRecord();
    void SaveRecord();
    void DeleteRecord();
    void RefreshRecord();

  private:
    void build();
    QLayout* recordHalf();
    QLayout* searchLine();
    void connectControls();
    void LoadGrid(const QString& order = {});
    void searchDate();
    void pickFromGrid();
    void display();
    void clearFields();
    void setOpen(bool open, bool withKey);
    void finish();

    ComboBox* txtCashier;
    TextBox* txtSaleDate;
    TextBox* txtCash;
    TextBox* txtDate;
    QGroupBox* fraCount;
    DataGrid* dbgMyGrid;
    Sql search_;
    qint64 currentKey_ = 0;  // of the row on show
};
