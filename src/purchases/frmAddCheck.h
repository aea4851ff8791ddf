#pragma once
#include "documents/line_popup.h"
#include "purchases/issued_check.h"

class QCheckBox;
class QToolButton;
class DateBox;
class TextBox;

// "Issue Cheque": one check of a voucher. A new one begins with the voucher's payee and amount, so that the
// usual single check needs a number only.
class frmAddCheck : public LinePopupOf<CheckLine> {
    Q_OBJECT
  public:
    frmAddCheck(LineOwner<CheckLine>& checks, const QString& payee, const QString& amount);

    void NewCheck() { startLine(); }

  protected:
    void clearFields() override;
    void showLine(const CheckLine& line) override;
    LineCheck checkTyped(const Answers& answers) override;
    CheckLine typedLine() const override;

  private:
    void makeFields();
    void layOut();
    void connectFields();
    CheckEntry entry() const;
    void showEntry(const CheckEntry& entry);
    void findPayee();

    QString payee_;
    QString amount_;

    TextBox* txtCheckNo;
    DateBox* txtDate;
    TextBox* txtCheckAmount;
    QCheckBox* chkCross;
    TextBox* txtPayee;
    QToolButton* cmdSearch;
};
