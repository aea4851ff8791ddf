#pragma once
#include "documents/order_entry.h"

// "Sales Entry": one sale to a customer.
class frmSalesEntry : public OrderEntry {
    Q_OBJECT
  public:
    frmSalesEntry();
};
