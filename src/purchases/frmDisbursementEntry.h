#pragma once
#include "documents/document_entry.h"
#include "purchases/voucher_controls.h"
#include "purchases/voucher_document.h"

class frmAddCheck;

// "Disbursement Entry": one payment voucher to one payee, of purchase orders or of expenses, by checks or in
// cash. The first payment fixes kind and payee; they are free again when the last one goes.
class frmDisbursementEntry : public DocumentEntry {
    Q_OBJECT
  public:
    frmDisbursementEntry();

  protected:
    void clearDocument() override;
    void loadDocument() override;
    Outcome saveDocument(Progress& progress) override;
    void startLine() override;
    void changeLine() override;
    void linesChanged() override;
    void showContact(const ContactFigures& figures) override;

  private:
    void connectPayments();
    void connectChecks();
    void startPayment(PaymentKind kind);
    Payee payee() const;
    void addCheck();
    void editCheck();
    void deleteCheck();
    frmAddCheck* checkPopup();
    void payInCash();

    VoucherControls own_;
    LinesOf<PaymentLine> payments_;
    LinesOf<CheckLine> checks_;
};
