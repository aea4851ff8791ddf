#include "sales/frmSalesGrid.h"

#include "books/balances.h"
#include "sales/print_delivery.h"

const JournalBook& salesJournal() {
    using Field = SearchField;
    static const JournalBook book{
        .screen = "frmSalesGrid",
        .caption = "Sales Journal Data Grid . . .",
        .entryScreen = "frmSalesEntry",
        .master = salesBook,
        .tables = {.table = "tblSalesMaster",
                   .contactColumn = "ContactNo",
                   .searchOrder = " ORDER BY RefDate DESC",
                   .fields = {{"Delivery No.", "RefNo"},
                              {"Delivery Date", "RefDate", Field::Date},
                              {"Customer Name", "ContactName"},
                              {"Total Amount", "TotalAmount", Field::Amount},
                              {"Remarks", "tblSalesMaster.Remarks"},
                              {"Who Updated", "tblSalesMaster.UpdatedBy"}}},
        .deletion = {.queuedAs = "S",
                     .guard =
                         DeleteGuard{"tblReceiptDetails", "Reference",
                                     "You Cannot Delete This Sales Order, You have Tag Payment with This "
                                     "Order! Remove Payment First!"},
                     .rows = {{"tblSalesDetails", "Reference"}, {"tblSalesMaster", "RefNo"}},
                     .recomputes = {RecomputeReceivableBalances, RecomputeInventoryBalances}},
        .deleteRight = "DeleteDRAccess",
        .printRight = "PrintDRAccess",
        .print = PrintDeliveryReceipt,
        .initialField = "Customer Name",
        .sorts = {{"optPackNo", "D.R. No.", " ORDER BY RefNo ASC"},
                  {"optCustomer", "Customer", " ORDER BY ContactName ASC"},
                  {"optPackDate", "D.R. Date", " ORDER BY RefDate ASC"},
                  {"optTotalAmount", "Total Amount", " ORDER BY TotalAmount ASC"}},
        .columns = {
            {"D.R. No.", "RefNo", GridColumn::Text, 14, " ORDER BY RefNo ASC"},
            {"D.R. Date", "RefDate", GridColumn::Date, 11, " ORDER BY RefDate ASC"},
            {"Customer", "ContactName", GridColumn::Text, 30, " ORDER BY ContactName ASC"},
            {"Total Amount", "TotalAmount", GridColumn::Amount, 15, " ORDER BY TotalAmount ASC"},
            {"Locked", "RecordLock", GridColumn::Flag, 8, " ORDER BY RecordLock ASC"},
            {"Printed", "Printed", GridColumn::Flag, 8, " ORDER BY Printed ASC"},
            {"Updated By", "UpdatedBy", GridColumn::Text, 12, " ORDER BY tblSalesMaster.UpdatedBy ASC"},
            {"Last Update", "DateUpdate", GridColumn::DateTime, 19,
             " ORDER BY tblSalesMaster.DateUpdate ASC"}}};
    return book;
}
