#pragma once
#include "masters/master_screen.h"

// What each cashier begins a day with.
class frmPOSCash : public MasterScreen {
    Q_OBJECT
  public:
    frmPOSCash();
    QSize sizeHint() const override;

  protected:
    QString drawKey(bool duplicate) override;
    Outcome save(QString& key) override;
    Outcome remove(const QString& key) override;
};
