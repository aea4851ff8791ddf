#include "reports/documents/prtPurchase.h"

#include "reports/documents/document_parts.h"
#include "reports/frame/report_query.h"

namespace {
const PageSetup page = letterPortrait(650, 650, 10875);

const DocumentPaper& paper() {
    static const DocumentPaper purchase{.title = "Purchase Order",
                                        .party = "Supplier :",
                                        .number = "P.O. No. :",
                                        .numberColumn = "PurchaseNo",
                                        .date = "P.O. Date :",
                                        .dateColumn = "PurchaseDate",
                                        .moved = "Delivered",
                                        .totalName = "txtPurchaseTotal",
                                        .columns = {.ordered = {90, 810},
                                                    .moved = {1080, 810},
                                                    .unit = {2070, 810},
                                                    .item = {2970, 990},
                                                    .description = {4050, 2250},
                                                    .gross = {6390, 1080},
                                                    .discount = {7560, 630},
                                                    .net = {8550, 1080},
                                                    .amount = {9720, 1080}},
                                        .signatures = {{"PREPARED BY:", "lblPrepared", 90},
                                                       {"CHECKED BY:", "lblChecked", 3510},
                                                       {"APPROVED BY:", "lblApproved", 6930}}};
    return purchase;
}

Sql linesOf(const QString& purchaseNo) {
    return {
        "SELECT tblContactMaster.ContactName, tblContactMaster.Address, tblContactMaster.TelNo, "
        "tblContactMaster.Terms, tblPurchaseMaster.PurchaseNo, tblPurchaseMaster.PurchaseDate, "
        "tblPurchaseMaster.Remarks, tblPurchaseDetails.* FROM (tblContactMaster INNER JOIN tblPurchaseMaster "
        "ON tblContactMaster.ContactID = tblPurchaseMaster.ContactNo) INNER JOIN tblPurchaseDetails ON "
        "tblPurchaseMaster.PurchaseNo = tblPurchaseDetails.Reference WHERE PurchaseNo = ? ORDER BY "
        "tblPurchaseDetails.RowNo",
        {purchaseNo}};
}
}  // namespace

const ReportLayout& prtPurchase() {
    static const ReportLayout layout{
        "prtPurchase",
        "Purchase Order...",
        page,
        {documentHeader(paper()), documentLine(paper()), documentFooter(paper()), pageOfPagesFooter(page)}};
    return layout;
}

std::optional<ReportJobParts> purchaseReport(Connection& store, const QString& purchaseNo) {
    return reportOfQuery(store, prtPurchase(), linesOf(purchaseNo), documentEvents(store),
                         documentTexts(store));
}

const DocumentTagging& purchaseTagging() {
    static const DocumentTagging tagging{{{"tblPurchaseMaster", "PurchaseNo"}},
                                         "Do you want to Tag this Purchase Order as Printed?"};
    return tagging;
}
