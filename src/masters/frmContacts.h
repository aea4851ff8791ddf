#pragma once
#include "masters/contact_document.h"
#include "masters/master_screen.h"

// The contact master: customers and suppliers.
class frmContacts : public WalkingMaster {
    Q_OBJECT
  public:
    frmContacts();

  protected:
    QString drawKey(bool duplicate) override;
    Outcome save(QString& key) override;
    Outcome remove(const QString& key) override;
    SearchCondition typeCondition(const QString& type) override;

  private:
    ContactEntry entry() const;
};
