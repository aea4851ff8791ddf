#pragma once
#include "documents/document_controls.h"

#include <QCheckBox>

// What the voucher's screen has beside the common controls, and the places of them all.
class VoucherControls {
  public:
    VoucherControls(const DocumentControls& common, QWidget* screen);

    // The checks of a voucher that is paid in cash cannot be changed.
    void allowChecks(bool allowed);

    TextBox* txtCreditLimit;
    QPushButton* cmdInsert;
    QCheckBox* chkCash;
    ListView* lvwCheck;
    QPushButton* cmdAddCheck;
    QPushButton* cmdEditCheck;
    QPushButton* cmdDeleteCheck;

  private:
    QGridLayout* head(const DocumentControls& common) const;
    QLayout* checkTitle() const;
    QLayout* checkButtons() const;
};
