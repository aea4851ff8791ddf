#include "purchases/frmDisbursementGrid.h"

#include "books/balances.h"
#include "purchases/print_voucher.h"

const JournalBook& disbursementJournal() {
    using Field = SearchField;
    static const JournalBook book{
        .screen = "frmDisbursementGrid",
        .caption = "Disbursement Journal Data Grid . . .",
        .entryScreen = "frmDisbursementEntry",
        .master = disbursementBook,
        .tables = {.table = "tblDisbursementMaster",
                   .contactColumn = "ContactNo",
                   .searchOrder = " ORDER BY VoucherDate DESC",
                   .fields = {{"Voucher No.", "VoucherNo"},
                              {"Voucher Date", "VoucherDate", Field::Date},
                              {"Payee Name", "ContactName"},
                              {"Total Amount", "VoucherAmount", Field::Amount},
                              {"Remarks", "tblDisbursementMaster.Remarks"},
                              {"Who Updated", "tblDisbursementMaster.UpdatedBy"}}},
        .deletion = {.queuedAs = nullptr,
                     .guard = {},
                     .rows = {{"tblChecks", "VoucherID"},
                              {"tblDisbursementDetails", "VoucherID"},
                              {"tblDisbursementMaster", "VoucherNo"}},
                     .recomputes = {RecomputePayableBalances}},
        .deleteRight = "DeleteCVAccess",
        .printRight = "PrintCVAccess",
        .print = PrintVoucherAndChecks,
        .nothingToPrint = exclamation("Error!", "Please Select a Payment Voucher First!"),
        .initialField = "Payee Name",
        .sorts = {{"optPackNo", "Voucher No.", " ORDER BY VoucherNo ASC"},
                  {"optCustomer", "Payee", " ORDER BY ContactName ASC"},
                  {"optPackDate", "Voucher Date", " ORDER BY VoucherDate ASC"},
                  {"optTotalAmount", "Total Amount", " ORDER BY VoucherAmount ASC"}},
        .columns = {{"Voucher No.", "VoucherNo", GridColumn::Text, 14, " ORDER BY VoucherNo ASC"},
                    {"Voucher Date", "VoucherDate", GridColumn::Date, 13, " ORDER BY VoucherDate ASC"},
                    {"Payee", "ContactName", GridColumn::Text, 30, " ORDER BY ContactName ASC"},
                    {"Total Amount", "VoucherAmount", GridColumn::Amount, 15, " ORDER BY VoucherAmount ASC"},
                    {"Locked", "RecordLock", GridColumn::Flag, 8, " ORDER BY RecordLock ASC"},
                    {"Printed", "Printed", GridColumn::Flag, 8, " ORDER BY Printed ASC"},
                    {"Updated By", "UpdatedBy", GridColumn::Text, 12,
                     " ORDER BY tblDisbursementMaster.UpdatedBy ASC"},
                    {"Last Update", "DateUpdate", GridColumn::Date, 12,
                     " ORDER BY tblDisbursementMaster.DateUpdate ASC"}}};
    return book;
}
