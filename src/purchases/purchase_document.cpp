#include "purchases/purchase_document.h"

#include "books/balances.h"

const OrderBook purchaseOrders{
    .bookId = "P",
    .master = purchaseBook,
    .dateColumn = "PurchaseDate",
    .amountColumn = "PurchaseAmount",
    .detailTable = "tblPurchaseDetails",
    .quantityColumn = "Delivered",
    .serial = numbering::purchase,
    .sells = false,
    .stampsTime = false,
    .updateBalance = UpdatePurchaseBalance,
    .contactBalance = SupplierBalance,
    .noCode = "Please enter Purchase No.!",
    .duplicate = "Duplicate Purchase No., Please Assign Another!",
    .noSuchContact = "Supplier does not exist, please add this to Supplier Master File...",
};
