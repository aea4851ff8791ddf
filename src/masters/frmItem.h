#pragma once
#include "masters/item_document.h"
#include "masters/master_screen.h"

// The item master.
class frmItem : public WalkingMaster {
    Q_OBJECT
  public:
    frmItem();

  protected:
    QString drawKey(bool duplicate) override;
    Outcome save(QString& key) override;
    Outcome remove(const QString& key) override;

  private:
    ItemEntry entry() const;
    void findSupplier();
};
