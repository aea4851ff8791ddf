#pragma once
#include "documents/document_screen.h"
#include "documents/order_owner.h"

// The words and habits that the sales and the purchase entry screens differ in.
struct OrderScreen {
    DocumentScreen document;
    const OrderBook* book;
    LineWords words;
    const char* serveName;
    const char* serveCaption;
    bool showsCreditLimit;
    bool sortDirties;  // a click on a column header raises mblnUpdated
};

// The columns of an order's list. The last heading is of a column that stays empty; null: there is none.
QList<ListColumn> orderColumns(const char* quantityHeading, const char* lastHeading = nullptr);
