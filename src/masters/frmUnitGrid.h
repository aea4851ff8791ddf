#pragma once
#include "platform/ui/child_screen.h"

class ListView;
class TextBox;

// The unit master: the list of units and one entry field below it.
class frmUnitGrid : public RecordScreen {
    Q_OBJECT
  public:
    frmUnitGrid();
    QSize sizeHint() const override;

  public slots:
    void NewRecord();
    void EditRecord();
    void SaveRecord();
    void DeleteRecord();
    void RefreshRecord() { LoadGrid(); }
    void LoadGrid();

  private:
    void openField(const QString& text);
    void closeField();
    QString selectedUnit() const;

    ListView* lvwRecord;
    TextBox* txtUnit;
    QString currentUnit_;  // CurrentUnit
};
