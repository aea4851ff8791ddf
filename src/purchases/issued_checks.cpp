#include "purchases/issued_checks.h"

#include "foundation/session.h"
#include "reports/checks/due_checks.h"
#include "reports/frame/report_preview.h"
#include "reports/frame/report_start.h"

const CheckBook issuedChecks{
    .table = "tblChecks",
    .select =
        "SELECT tblChecks.*, tblContactMaster.ContactName, (SELECT VoucherDate FROM "
        "tblDisbursementMaster WHERE VoucherNo = tblChecks.VoucherID) AS VoucherDate FROM "
        "tblContactMaster INNER JOIN tblChecks ON tblContactMaster.ContactID = tblChecks.ContactNo",
    .views = commonCheckViews(),
    .columns = {{{"Voucher No.", 19}, "VoucherID"},
                {{"Control", 12}, "ZevRef"},
                {{"Date", 11, ListColumn::Date}, "VoucherDate"},
                {{"Customer Name", 26}, "ContactName"},
                {{"Check No.", 14}, "CheckNo"},
                {{"Check Date", 11, ListColumn::Date}, "CheckDate"},
                {{"Amount", 13, ListColumn::Number}, "CheckAmount"},
                {{"Check Status", 14}, "CheckStatus"}},
    .categories = {{"Voucher No.", "VoucherID"},
                   {"Payee Name", "ContactName"},
                   {"Check No.", "CheckNo"},
                   {"Check Date", "CheckDate", CheckCategory::Date},
                   {"Check Status", "CheckStatus", CheckCategory::Status},
                   {"Check Date Period", "CheckDate", CheckCategory::Period}},
    .contactCategory = "Payee Name",
    .taggedTitle = "Success!",
    .notFound = "System Cannot Recognize Control No.!",
};

static ChildScreen* printChecks(const CheckView& view, const Sql& rows) {
    return previewFromEntry(dueChecksReport(StoreConnection(), prtPayableDueChecks, rows, view.reportTitle));
}

const CheckScreen issuedCheckScreens{
    .book = &issuedChecks,
    .name = "frmNegPayableChecks",
    .caption = "Payable Check Status...",
    .dialogName = "frmNegPayableStatus",
    .print = printChecks,
};
