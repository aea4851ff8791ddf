#pragma once
#include "documents/order_entry.h"

// "Purchase Entry": one purchase from a supplier. Its contact controls keep the customer's name.
class frmPurchaseEntry : public OrderEntry {
    Q_OBJECT
  public:
    frmPurchaseEntry();
};
