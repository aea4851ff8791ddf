#pragma once
#include "books/numbering.h"
#include "books/record_lock.h"
#include "books/stock_valuation.h"
#include "documents/contact_figures.h"
#include "platform/box.h"

// What sales and purchase orders differ in. Each side has one (sales/sales_document.h,
// purchases/purchase_document.h); the modules and screens of this folder know no other difference.
struct OrderBook {
    const char* bookId;  // in the posting queue and the valuation
    LockableBook master;
    const char* dateColumn;
    const char* amountColumn;
    const char* detailTable;
    const char* quantityColumn;  // what moves stock: served, or delivered
    numbering::SerialCounter serial;
    bool sells;       // goods leave: stock is tested, prices go to the customer's side
    bool stampsTime;  // DateUpdate holds the time of day too

    void (*updateBalance)(Connection&, const QString& key, Boxes&);
    ContactBalance contactBalance;

    const char* noCode;
    const char* duplicate;
    const char* noSuchContact;

    PriceKind priceKind(bool wholesale) const {
        if (!sells) return PriceKind::Cost;
        return wholesale ? PriceKind::Whole : PriceKind::Sell;
    }
};
