#pragma once
#include "platform/ui/child_screen.h"
#include "shell/lock_document.h"

class ComboBox;
class QGroupBox;
class QPushButton;

// Locks and releases one document at a time, in any of the four journals.
class frmRecordLock : public ChildScreen {
    Q_OBJECT
  public:
    frmRecordLock();

  private:
    void build();
    void journalChanged();
    void fillSelection();
    void readStatus();
    void change(LockChange change);
    void reset();

    ComboBox* cboJournal;
    ComboBox* cboSelection;
    QGroupBox* fraSelection;
    QPushButton* cmdLock;
    QPushButton* cmdUnlock;
};
