#include "sales/received_checks.h"

#include "foundation/session.h"
#include "reports/checks/due_checks.h"
#include "reports/frame/report_preview.h"
#include "reports/frame/report_start.h"

const CheckBook receivedChecks{
    .table = "tblReceiptDetails",
    .select =
        "SELECT tblReceiptDetails.*, tblContactMaster.ContactName FROM (tblContactMaster INNER JOIN "
        "tblReceiptMaster ON tblContactMaster.ContactID = tblReceiptMaster.CustomerNo) INNER JOIN "
        "tblReceiptDetails ON tblReceiptMaster.PayNo = tblReceiptDetails.PayCode",
    .views = commonCheckViews() + QList<CheckView>{{.name = "Credit Card Payment",
                                                    .condition = " WHERE %1.CheckStatus = 'Card'",
                                                    .reportTitle = "Credit Card Payment Report",
                                                    .numberHeading = "Approval No.",
                                                    .dateHeading = "Date"}},
    .columns = {{{"Payment No.", 11}, "PayCode"},
                {{"Control", 9}, "ZevRef"},
                {{"Reference", 15}, "Reference"},
                {{"Customer Name", 26}, "ContactName"},
                {{"Check No.", 14}, "CheckNo"},
                {{"Check Date", 11, ListColumn::Date}, "CheckDate"},
                {{"Amount", 13, ListColumn::Number}, "Amount"},
                {{"Check Status", 14}, "CheckStatus"}},
    .categories = {{"Payment No.", "PayNo"},
                   {"Reference No.", "Reference"},
                   {"Customer Name", "ContactName"},
                   {"Check No.", "CheckNo"},
                   {"Check Date", "CheckDate", CheckCategory::Date},
                   {"Check Status", "CheckStatus", CheckCategory::Status},
                   {"Check Date Period", "CheckDate", CheckCategory::Period}},
    .contactCategory = "Customer Name",
    .taggedTitle = "Success?",
    .notFound = "System Cannot Recognize Payment No.!",
};

static ChildScreen* printChecks(const CheckView& view, const Sql& rows) {
    return previewFromEntry(
        dueChecksReport(StoreConnection(), prtReceivableDueChecks, rows, view.reportTitle));
}

const CheckScreen receivedCheckScreens{
    .book = &receivedChecks,
    .name = "frmNegReceivableChecks",
    .caption = "Accounts Receivable Payment Status...",
    .dialogName = "frmNegReceivableStatus",
    .print = printChecks,
};
