#pragma once
#include "platform/currency.h"

#include <QtGlobal>
#include <vector>

// The costing of one item, first in first out, over its rows of the ledger: no store, no window. The routine
// for one item and the pass over all share it.

enum class Movement { Purchase, Sale, Other };

// What the costing computes, and the store keeps.
struct StockFigures {
    Currency balance;    // on hand after the row
    Currency salesCost;  // of a sale; other rows keep theirs
    bool operator==(const StockFigures&) const = default;
};

struct StockRow {
    qint64 zevRef = 0;
    Movement movement = Movement::Other;
    Currency stockIn;
    Currency inPrice;
    Currency stockOut;
    StockFigures stored;
    StockFigures figures;  // begins as stored
};

// The purchase layers of an item, used up in the order they were added. A layer of zero or less is skipped.
class StockLayers {
  public:
    void clear();
    void add(Currency quantity, Currency price);
    // Takes the quantity from the layers; what they do not cover costs nothing.
    Currency take(Currency quantity);

  private:
    struct Layer {
        Currency left;
        Currency price;
    };
    std::vector<Layer> layers_;
    size_t oldest_ = 0;
};

// Takes the rows of one item in the order of the ledger, then gives their figures. Throws OverflowError at
// the first figure beyond the range; the rows before it have theirs then.
class ItemCosting {
  public:
    void clear();
    void add(const StockRow& row);
    void computeBalances();
    void computeSalesCost();
    const std::vector<StockRow>& rows() const { return rows_; }

  private:
    std::vector<StockRow> rows_;
    StockLayers layers_;
};
