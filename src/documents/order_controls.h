#pragma once
#include "documents/document_controls.h"
#include "documents/order_screen.h"
#include "documents/sort_arrow.h"

#include <QCheckBox>

// What an order's screen has beside the common controls, and the places of them all.
class OrderControls {
  public:
    OrderControls(const OrderScreen& words, const DocumentControls& common, QWidget* screen);

    // The choice of price that only a new document has.
    void showNewDocument(bool isNew);

    TextBox* txtBalance;
    TextBox* txtCreditLimit;  // null where the screen has none
    QCheckBox* chkWholesale;  // null where the screen has none
    QPushButton* cmdServe;

  private:
    QGridLayout* head(const OrderScreen& words, const DocumentControls& common) const;
    QLayout* listTitle(const DocumentControls& common) const;

    SortArrow* arrow_;
};
