#pragma once
#include "platform/store/connection.h"

// The items whose rows of the ledger are added, changed or removed, by any workstation, while this lives: the
// triggers of tblStockValuation write them down for each pass that has its row in StockPass.
class TouchedItems {
  public:
    explicit TouchedItems(Connection& store);
    ~TouchedItems();
    TouchedItems(const TouchedItems&) = delete;
    TouchedItems& operator=(const TouchedItems&) = delete;

    QStringList codes() const;

  private:
    Connection& store_;
    qint64 pass_ = 0;
};
