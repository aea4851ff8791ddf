#pragma once
#include "platform/currency.h"
#include "platform/store/connection.h"

#include <QDate>

// One document line on its way into the ledger.
struct StockMovement {
    QString bookId;  // "P": in; any other: out
    QString reference;
    QString contact;
    QString itemCode;
    QDate date;
    Currency quantity;
    Currency price;  // net of the line's discount
};

// Adds the row under a key that the caller has taken.
void addStockRow(Connection& store, qint64 zevRef, const StockMovement& movement);
