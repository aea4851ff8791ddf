#include "demo/report_pictures.h"

#include "platform/store/connection.h"
#include "reports/audit/prtAudit.h"
#include "reports/checks/due_checks.h"
#include "reports/frame/report_output.h"
#include "reports/frame/report_run.h"
#include "reports/inventory/frmPrintInventory.h"
#include "reports/inventory/prtStockCard.h"
#include "reports/journals/transaction_reports.h"
#include "reports/labels/prtBarCode.h"
#include "reports/lists/prtContactList.h"
#include "reports/logbooks/log_book_reports.h"
#include "reports/outstanding/outstanding_reports.h"
#include "reports/quotations/prtQuotation.h"
#include "reports/quotations/prtSalesQuota.h"

#include <QImage>
#include <QPainter>
#include <stdexcept>

namespace {
using Report = std::optional<ReportJobParts> (*)(Connection& store, const PrintRequest& request);

std::optional<ReportJobParts> dueChecks(Connection& store, const PrintRequest& request) {
    const DueChecks& list = request.kind == "P" ? prtPayableDueChecks : prtReceivableDueChecks;
    return dueChecksReport(store, list, checksDue(list));
}

std::optional<ReportJobParts> contacts(Connection& store, const PrintRequest&) {
    return contactListReport(store, "SELECT * FROM tblContactMaster ORDER BY ContactName", {});
}

// Of the first items.
std::optional<ReportJobParts> labels(Connection& store, const PrintRequest&) {
    QStringList codes;
    for (Recordset items = store.execute("SELECT ItemCode FROM tblItemMaster ORDER BY ItemCode");
         !items.eof() && codes.size() < 30; items.moveNext())
        codes += items.trimmed("ItemCode");
    return barCodeReport(store, codes);
}

// What a person would ask for: all days, the first contact where one is needed.
struct Drawn {
    Report report;
    QList<PrintRequest> requests;
};

PrintRequest allDays(const QString& kind, const QString& selection = {}) {
    return {.kind = kind, .selection = selection, .allDays = true};
}

QList<PrintRequest> bothOptions(const QStringList& kinds) {
    QList<PrintRequest> requests;
    for (const QString& kind : kinds)
        for (const char* option : {"optSummary", "optDetailed"}) requests += allDays(kind, option);
    return requests;
}

QList<Drawn> drawnOver(Connection& store) {
    PrintRequest quoted = allDays({}, quotationOrders().first());
    quoted.contact =
        store.execute("SELECT ContactName FROM tblContactMaster ORDER BY ContactName").text("ContactName");
    PrintRequest audited = allDays({}, auditedBooks().first());
    PrintRequest moved = allDays({});
    moved.item = store
                     .execute(
                         "SELECT ItemCode, COUNT(*) AS Moves FROM tblStockValuation GROUP BY ItemCode "
                         "ORDER BY COUNT(*) DESC, ItemCode")
                     .text("ItemCode");
    return {{outstandingReport, bothOptions({"R", "P"})},
            {logBookReport, {allDays("R"), allDays("P")}},
            {dueChecks, {allDays("R"), allDays("P")}},
            {transactionReport, bothOptions({"S", "R", "P", "D", "PROFIT"})},
            {inventoryReport, {allDays({}, "Item Description")}},
            {stockCardReport, {moved}},
            {salesQuotaReport, {allDays({})}},
            {quotationReport, {quoted}},
            {auditReport, {audited}},
            {contacts, {allDays({})}},
            {labels, {allDays({})}}};
}

QImage firstPage(ReportJobParts& report) {
    constexpr int dotsToTheInch = 100, twipsToTheInch = 1440;
    const ReportPages pages = runReport(report);
    QImage picture(pages.setup.paper() * dotsToTheInch / twipsToTheInch, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.scale(1.0 * dotsToTheInch / twipsToTheInch, 1.0 * dotsToTheInch / twipsToTheInch);
    reportOutput::paintPage(painter, pages, 0);
    return picture;
}
}  // namespace

void drawReports(Connection& store, const QDir& folder, const std::function<void(const QString&)>& say) {
    for (const Drawn& drawn : drawnOver(store))
        for (const PrintRequest& request : drawn.requests) {
            std::optional<ReportJobParts> report = drawn.report(store, request);
            if (!report) throw std::runtime_error("nothing to print of " + request.kind.toStdString());
            const QString name = report->layout.name + (request.kind.isEmpty() ? "" : " " + request.kind);
            const QString file = folder.filePath(name + ".png");
            if (!firstPage(*report).save(file))
                throw std::runtime_error("cannot write " + file.toStdString());
            say(file);
        }
}
