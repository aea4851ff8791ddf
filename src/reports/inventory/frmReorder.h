#pragma once
#include "platform/ui/child_screen.h"

class ListView;

// The items below their order level. The frame shows it at each activation.
class frmReorder : public ChildScreen {
    Q_OBJECT
  public:
    frmReorder();
    bool receive(const ScreenArguments& arguments) override;
    QSize sizeHint() const override;

  public slots:
    void RefreshRecord();

  private:
    void print();

    ListView* lvwItem;
};
