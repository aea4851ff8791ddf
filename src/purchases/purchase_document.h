#pragma once
#include "documents/order_document.h"

// The purchase orders: what they are stored in, and their words.
extern const OrderBook purchaseOrders;
