#pragma once
#include "platform/ui/child_screen.h"

class ListView;

// The users of the program: the list from which they are added, edited and deleted.
class frmUserGrid : public ChildScreen {
    Q_OBJECT
  public:
    frmUserGrid();
    QSize sizeHint() const override;

  public slots:
    void NewRecord();
    void EditRecord();
    void DeleteRecord();
    void RefreshRecord() { LoadGrid(); }
    void LoadGrid();

  private:
    ListView* lvwRecord;
};
