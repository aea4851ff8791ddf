#pragma once
#include "platform/outcome.h"
#include "reports/checks/check_papers.h"

#include <QGroupBox>

class QCheckBox;

// What the print hub prints of a voucher, and of its checks from which book. The book is the firm's setting,
// and a choice made here becomes the setting.
class CheckChoice : public QGroupBox {
    Q_OBJECT
  public:
    CheckChoice();

    // The book as the setting has it; neither checks nor voucher.
    void startAnew();
    // Checks and voucher are never printed together.
    std::optional<Fault> fault() const;
    bool printsChecks() const;
    CheckBook book() const;
    // Keeps another book than the setting names. A Fault when it cannot be written.
    std::optional<Fault> keepBook();

  private:
    QCheckBox* optChecks;
    QCheckBox* optVoucher;
    QCheckBox* optCommercial;
    QCheckBox* optPersonal;
};
