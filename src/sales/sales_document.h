#pragma once
#include "documents/order_document.h"

// The sales orders, also called delivery receipts: what they are stored in, and their words.
extern const OrderBook salesOrders;
