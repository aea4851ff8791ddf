#include "books/costing.h"

#include <algorithm>

void StockLayers::clear() {
    layers_.clear();
    oldest_ = 0;
}

void StockLayers::add(Currency quantity, Currency price) { layers_.push_back({quantity, price}); }

Currency StockLayers::take(Currency quantity) {
    Currency cost;
    while (quantity > Currency() && oldest_ < layers_.size()) {
        Layer& layer = layers_[oldest_];
        if (layer.left <= Currency()) {
            ++oldest_;
            continue;
        }
        const Currency taken = std::min(quantity, layer.left);
        cost += taken * layer.price;
        layer.left -= taken;
        quantity -= taken;
    }
    return cost;
}

void ItemCosting::clear() {
    rows_.clear();
    layers_.clear();
}

void ItemCosting::add(const StockRow& row) { rows_.push_back(row); }

void ItemCosting::computeBalances() {
    Currency balance;
    for (StockRow& row : rows_) {
        if (row.movement == Movement::Purchase) balance += row.stockIn;
        if (row.movement == Movement::Sale) balance -= row.stockOut.abs();
        row.figures.balance = balance;
    }
}

// A sale takes the oldest layer that is left, whatever its date; so all layers are known first.
void ItemCosting::computeSalesCost() {
    layers_.clear();
    for (const StockRow& row : rows_)
        if (row.movement == Movement::Purchase) layers_.add(row.stockIn, row.inPrice);
    for (StockRow& row : rows_)
        if (row.movement == Movement::Sale) row.figures.salesCost = layers_.take(row.stockOut);
}
