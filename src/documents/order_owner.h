#pragma once
#include "documents/line_owner.h"
#include "documents/order_line.h"

// The words that the line popups take from the side they serve.
struct LineWords {
    const char* lblServe;   // of the line dialog
    const char* lblPrice;   // of the line dialog
    const char* lblServed;  // of the quantity popup
};

// The order screen, as its line popups see it.
class OrderOwner {
  public:
    virtual ~OrderOwner() = default;
    virtual const OrderBook& orderBook() const = 0;
    virtual const LineWords& lineWords() const = 0;
    virtual LineOrder lineOrder() const = 0;
    virtual LineOwner<OrderLine>& lines() = 0;
};
