#include "sales/frmReceiptGrid.h"

#include "books/balances.h"
#include "sales/frmReceiptAnnouce.h"
#include "sales/print_invoice.h"

const JournalBook& receiptJournal() {
    using Field = SearchField;
    static const JournalBook book{
        .screen = "frmReceiptGrid",
        .caption = "Receipt Journal Data Grid . . .",
        .entryScreen = "frmReceiptEntry",
        .master = receiptBook,
        .keyKind = JournalBook::NumberKey,
        .tables = {.table = "tblReceiptMaster",
                   .contactColumn = "CustomerNo",
                   .searchOrder = " ORDER BY PaymentDate DESC",
                   .fields = {{"Payment No.", "PayNo", Field::Number},
                              {"Payment Date", "PaymentDate", Field::Date},
                              {"Customer Name", "ContactName"},
                              {"Discounts", "TotalDiscAmount", Field::Amount},
                              {"Payment Amount", "PaymentAmount", Field::Amount},
                              {"Remarks", "PayRemarks"},
                              {"Who Updated", "tblReceiptMaster.UpdatedBy"}},
                   .notADate = "Invalid Search Date!",
                   .notAnAmount = "Invalid Search Amount!"},
        // A receipt is entered once: in place of its edit stands what its customer owes by now.
        .rowCommand = {.name = "cmdRecompute",
                       .caption = "Re-&Compute",
                       .icon = "calculator",
                       .nothing = "Please Select Proper Record to Compute! There's Nothing to Compute!",
                       .popup = announceBalance},
        .deletion = {.queuedAs = nullptr,
                     .guard = {},
                     .rows = {{"tblReceiptDetails", "PayCode"}, {"tblReceiptMaster", "PayNo"}},
                     .recomputes = {RecomputeReceivableBalances}},
        .deleteRight = "DeleteSIAccess",
        .saysNoDeleteRight = false,
        .printRight = "PrintSIAccess",
        .print = PrintPaymentInvoice,
        .initialField = "Customer Name",
        .sorts = {{"optPackNo", "Payment No.", " ORDER BY PayNo ASC"},
                  {"optCustomer", "Customer", " ORDER BY ContactName ASC"},
                  {"optPackDate", "Payment Date", " ORDER BY PaymentDate ASC"},
                  {"optTotalAmount", "Payment Amount", " ORDER BY PaymentAmount ASC"}},
        .columns = {
            {"Payment No.", "PayNo", GridColumn::Text, 8, " ORDER BY PayNo ASC"},
            {"Payment Date", "PaymentDate", GridColumn::Date, 11, " ORDER BY PaymentDate ASC"},
            {"Customer", "ContactName", GridColumn::Text, 30, " ORDER BY ContactName ASC"},
            {"Discounts", "TotalDiscAmount", GridColumn::Amount, 11, " ORDER BY TotalDiscAmount ASC"},
            {"Payment Amount", "PaymentAmount", GridColumn::Amount, 12, " ORDER BY PaymentAmount ASC"},
            {"Locked", "RecordLock", GridColumn::Flag, 6, " ORDER BY RecordLock ASC"},
            {"Printed", "Printed", GridColumn::Flag, 6, " ORDER BY Printed ASC"},
            {"Updated By", "UpdatedBy", GridColumn::Text, 10, " ORDER BY tblReceiptMaster.UpdatedBy ASC"},
            {"Last Update", "DateUpdate", GridColumn::DateTime, 19,
             " ORDER BY tblReceiptMaster.DateUpdate ASC"}}};
    return book;
}
