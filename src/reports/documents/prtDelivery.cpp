#include "reports/documents/prtDelivery.h"

#include "reports/documents/document_parts.h"
#include "reports/frame/report_query.h"

namespace {
const PageSetup page = letterPortrait(650, 650, 10800);

const DocumentPaper& paper() {
    static const DocumentPaper delivery{
        .title = "Delivery Receipt",
        .party = "Sold To :",
        .number = "D.R. No. :",
        .numberColumn = "RefNo",
        .date = "D.R. Date :",
        .dateColumn = "RefDate",
        .moved = "Served",
        .totalName = "txtDeliveryTotal",
        .columns = {.ordered = {90, 810},
                    .moved = {990, 810},
                    .unit = {1890, 810},
                    .item = {2790, 990},
                    .description = {3870, 2340},
                    .gross = {6300, 1080},
                    .discount = {7470, 630},
                    .net = {8460, 1080},
                    .amount = {9630, 1080}},
        .signatures = {{"PREPARED BY:", "lblPrepared", 90}, {"CHECKED BY:", "lblChecked", 3330}}};
    return delivery;
}

QList<ReportControl> receiptBlock() {
    const TextStyle tight{Typeface::Tahoma, 8, false, Qt::AlignLeft};
    return {
        label("lblReceived", "RECEIVED THE ABOVE ARTICLES IN GOOD CONDITION :", 6120, 810, 4590, 225, tight),
        label("lblBy", "BY :", 6120, 1080, 900, 225), line("linCustomer", 6120, 1800, 4590),
        label("lblCustomer", "CUSTOMER SIGNATURE / REPRESENTATIVE SIGNATURE", 6120, 1890, 4590, 225, tight)};
}

Sql linesOf(const QString& refNo) {
    return {
        "SELECT tblContactMaster.ContactName, tblContactMaster.Address, tblContactMaster.TelNo, "
        "tblContactMaster.Terms, tblSalesMaster.RefNo, tblSalesMaster.RefDate, tblSalesMaster.Remarks, "
        "tblSalesDetails.* FROM (tblSalesDetails INNER JOIN tblSalesMaster ON tblSalesDetails.Reference = "
        "tblSalesMaster.RefNo) INNER JOIN tblContactMaster ON tblSalesMaster.ContactNo = "
        "tblContactMaster.ContactID WHERE RefNo = ? ORDER BY tblSalesDetails.RowNo",
        {refNo}};
}
}  // namespace

const ReportLayout& prtDelivery() {
    static const ReportLayout layout{"prtDelivery",
                                     "Delivery Receipt...",
                                     page,
                                     {documentHeader(paper()), documentLine(paper()),
                                      documentFooter(paper(), receiptBlock()), pageOfPagesFooter(page)}};
    return layout;
}

std::optional<ReportJobParts> deliveryReport(Connection& store, const QString& refNo) {
    return reportOfQuery(store, prtDelivery(), linesOf(refNo), documentEvents(store), documentTexts(store));
}

const DocumentTagging& deliveryTagging() {
    static const DocumentTagging tagging{{{"tblSalesMaster", "RefNo"}},
                                         "Do you want to Tag this Sales Order as Printed?"};
    return tagging;
}
