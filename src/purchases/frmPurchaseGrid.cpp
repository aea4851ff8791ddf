#include "purchases/frmPurchaseGrid.h"

#include "books/balances.h"
#include "purchases/print_purchase.h"

const JournalBook& purchaseJournal() {
    using Field = SearchField;
    static const JournalBook book{
        .screen = "frmPurchaseGrid",
        .caption = "Purchase Journal Data Grid . . .",
        .entryScreen = "frmPurchaseEntry",
        .master = purchaseBook,
        .tables = {.table = "tblPurchaseMaster",
                   .contactColumn = "ContactNo",
                   .searchOrder = " ORDER BY PurchaseDate DESC",
                   .fields = {{"Purchase No.", "PurchaseNo"},
                              {"Purchase Date", "PurchaseDate", Field::Date},
                              {"Supplier Name", "ContactName"},
                              {"Total Amount", "PurchaseAmount", Field::Amount},
                              {"Remarks", "tblPurchaseMaster.Remarks"},
                              {"Who Updated", "tblPurchaseMaster.UpdatedBy"}}},
        .deletion = {.queuedAs = "P",
                     .guard =
                         DeleteGuard{"tblDisbursementDetails", "PuchaseID",
                                     "You Cannot Delete This Purchase Order, You have Tag Payment with This "
                                     "Order! Remove Payment First!"},
                     .rows = {{"tblPurchaseDetails", "Reference"}, {"tblPurchaseMaster", "PurchaseNo"}},
                     .recomputes = {RecomputePayableBalances, RecomputeInventoryBalances}},
        .deleteRight = "DeletePOAccess",
        .printRight = "PrintPOAccess",
        .print = PrintPurchaseOrder,
        .initialField = "Supplier Name",
        .sorts = {{"optPackNo", "P.O. No.", " ORDER BY PurchaseNo ASC"},
                  {"optCustomer", "Supplier", " ORDER BY ContactName ASC"},
                  {"optPackDate", "P.O. Date", " ORDER BY PurchaseDate ASC"},
                  {"optTotalAmount", "Total Amount", " ORDER BY PurchaseAmount ASC"}},
        .columns = {
            {"P.O. No.", "PurchaseNo", GridColumn::Text, 14, " ORDER BY PurchaseNo ASC"},
            {"P.O. Date", "PurchaseDate", GridColumn::Date, 11, " ORDER BY PurchaseDate ASC"},
            {"Supplier", "ContactName", GridColumn::Text, 30, " ORDER BY ContactName ASC"},
            {"Total Amount", "PurchaseAmount", GridColumn::Amount, 15, " ORDER BY PurchaseAmount ASC"},
            {"Locked", "RecordLock", GridColumn::Flag, 8, " ORDER BY RecordLock ASC"},
            {"Printed", "Printed", GridColumn::Flag, 8, " ORDER BY Printed ASC"},
            {"Updated By", "UpdatedBy", GridColumn::Text, 12, " ORDER BY tblPurchaseMaster.UpdatedBy ASC"},
            {"Last Update", "DateUpdate", GridColumn::Date, 12,
             " ORDER BY tblPurchaseMaster.DateUpdate ASC"}}};
    return book;
}
