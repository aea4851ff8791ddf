#include "sales/sales_document.h"

#include "books/balances.h"

const OrderBook salesOrders{
    .bookId = "S",
    .master = salesBook,
    .dateColumn = "RefDate",
    .amountColumn = "TotalAmount",
    .detailTable = "tblSalesDetails",
    .quantityColumn = "Served",
    .serial = numbering::sales,
    .sells = true,
    .stampsTime = true,
    .updateBalance = UpdateSalesBalance,
    .contactBalance = CustomerBalance,
    .noCode = "Please Enter Reference No.!",
    .duplicate = "Duplicate Reference No., Please Assign Another!",
    .noSuchContact = "Customer Does Not Exist, Please Add This To Customer Master File First...",
};
