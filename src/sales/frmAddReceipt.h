#pragma once
#include "documents/line_popup.h"
#include "sales/receipt_line.h"

class QCheckBox;
class QToolButton;
class DateBox;
class TextBox;

// "Add Entry": one order that a receipt pays, with its discount and its means of payment. The check stays for
// the next line, since one check often pays several orders.
class frmAddReceipt : public LinePopupOf<ReceiptLine> {
    Q_OBJECT
  public:
    frmAddReceipt(LineOwner<ReceiptLine>& lines, const QString& customerName);

    void NewPayment() { startLine(); }
    bool CheckCode();
    void ComputeDiscounts();
    void ValidatePaymentMode();

  protected:
    void clearFields() override;
    void showLine(const ReceiptLine& line) override;
    LineCheck checkTyped(const Answers& answers) override;
    ReceiptLine typedLine() const override { return ready_; }

  private:
    void makeFields();
    void layOut();
    void connectOrder();
    void connectFigures();

    PaymentEntry entry() const;
    void showEntry(const PaymentEntry& entry);
    void apply(const std::function<void(PaymentEntry&)>& rule);

    void enterOrder();
    void leaveOrder();
    void findOrder();
    void takeOrder(const QString& number);

    const QString customerName_;
    QString lookedUp_;   // the order number that the figures stand for
    ReceiptLine ready_;  // what was typed, once it has been checked

    TextBox* txtSANo;
    QToolButton* cmdSearch;
    TextBox* txtJournalAmount;
    TextBox* txtBalance;
    TextBox* txtDiscount;
    TextBox* txtTotalDiscount;
    TextBox* txtRequired;
    TextBox* txtPayment;
    QCheckBox* chkCash;
    TextBox* txtCheckNo;
    DateBox* txtCheckDate;
};
