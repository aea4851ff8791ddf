#pragma once
#include "documents/line_popup.h"
#include "purchases/voucher_payment.h"

class ComboBox;
class QCheckBox;
class QLabel;
class QToolButton;
class DateBox;
class TextBox;

// "Add Payment": one payment of a voucher, of a purchase order or of an expense, and stays open for the next.
class frmAddPayment : public LinePopupOf<PaymentLine> {
    Q_OBJECT
  public:
    frmAddPayment(LineOwner<PaymentLine>& payments, const Payee& payee,
                  PaymentKind kind = PaymentKind::Payable);

    void NewPayment() { startLine(); }
    // Loads the purchase order named in cboCode; false when there is none.
    bool CheckCode();

  protected:
    void clearFields() override;
    void showLine(const PaymentLine& line) override;
    LineCheck checkTyped(const Answers& answers) override;
    PaymentLine typedLine() const override;

  private:
    void makeFields();
    void layOut();
    void connectFields();
    void showKind(PaymentKind kind);
    VoucherPaymentEntry entry() const;
    void showEntry(const VoucherPaymentEntry& entry);
    bool isPayable() const;
    void leaveCode();
    void enterCode();
    void findOrder();
    void takeOrder(const QString& purchaseNo);

    Payee payee_;
    QString lookedUp_;  // the code that the fields were last filled for

    QLabel* lblCode;
    QLabel* lblDate;
    ComboBox* cboCode;
    QToolButton* cmdSearch;
    DateBox* txtDate;
    TextBox* txtAmount;
    TextBox* txtParticulars;
    QCheckBox* chkDirect;
};
