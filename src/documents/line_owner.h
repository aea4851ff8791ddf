#pragma once
#include "documents/order_line.h"

// The words that the line popups take from the side they serve.
struct LineWords {
    const char* lblServe;   // of the line dialog
    const char* lblPrice;   // of the line dialog
    const char* lblServed;  // of the quantity popup
};

// The order screen, as its line popups see it: they work on its list and never touch the store's tables.
class LineOwner {
  public:
    virtual ~LineOwner() = default;
    virtual const OrderBook& orderBook() const = 0;
    virtual const LineWords& lineWords() const = 0;
    virtual LineOrder lineOrder() const = 0;
    virtual bool hasLine(const QString& itemCode) const = 0;
    virtual OrderLine lineAt(int row) const = 0;
    // Both bring count and total up to date.
    virtual void addLine(const OrderLine& line) = 0;
    virtual void replaceLine(int row, const OrderLine& line) = 0;
};
