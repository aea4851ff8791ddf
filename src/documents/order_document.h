#pragma once
#include "documents/document_head.h"
#include "documents/order_line.h"
#include "platform/progress.h"

// A sales or purchase order without its window: what was typed, and how it is loaded, checked and saved.
//
//     OrderDocument sale = newOrder(store, salesOrders);
//     sale.contactName = "Aling Nena Store";
//     sale.lines = {makeOrderLine("1000000001", "Rice 50 kg", "SACK", ten, ten, price, discount)};
//     const Outcome outcome = saveOrder(store, salesOrders, sale);
struct OrderDocument : DocumentHead {
    bool wholesale = false;  // of a new one: the prices are wholesale prices
    QList<OrderLine> lines = {};
};

// An empty document of today with the number that comes next. The number is peeked, not taken.
OrderDocument newOrder(Connection& store, const OrderBook& book);

// The order as its lines see it.
LineOrder lineOrder(const OrderDocument& document);

// A stored document, as its screen shows it. Throws StoreError: noCurrentRow when it is not there.
struct LoadedOrder : StoredHead {
    OrderDocument document;
    QString total;
    QString balance;
};
LoadedOrder loadOrder(Connection& store, const OrderBook& book, const QString& key);
// Its lines, in the order the store gives.
QList<OrderLine> loadOrderLines(Connection& store, const OrderBook& book, const QString& key,
                                Progress& progress = Progress::none());

// The checks before a save, in their order; a fault leaves all as it is.
std::optional<Fault> checkOrder(Connection& store, const OrderBook& book, const OrderDocument& document);

// Checks the order and saves it, whole or not at all: the master row, the counter of a new one, the queue,
// the lines, the prices and quantities of their items, and the balance. With the write lock held each line
// that was tested is tested again. Done or a Fault, never a Question.
Outcome saveOrder(Connection& store, const OrderBook& book, const OrderDocument& document,
                  Progress& progress = Progress::none());
