#pragma once
#include "documents/document_entry.h"
#include "sales/receipt_document.h"

// "Receipt Entry": posts one payment of a customer over one or more sales orders. A receipt is entered once;
// its number is taken when the screen proposes it.
class frmReceiptEntry : public DocumentEntry {
    Q_OBJECT
  public:
    frmReceiptEntry();

  public slots:
    // The discounts of all lines, as the receipt keeps them.
    Currency RecomputeDiscount() const { return receiptDiscount(lines_.all()); }

  protected:
    void loadDocument() override;
    Outcome saveDocument(Progress& progress) override;
    void startLine() override;
    void changeLine() override;
    void linesChanged() override;

  private:
    void layOut();
    LinePopupOf<ReceiptLine>* makePopup();

    LinesOf<ReceiptLine> lines_;
    QPushButton* cmdInsert;
};
