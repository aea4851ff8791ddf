#include "reports/menu_lists.h"

#include "foundation/session.h"
#include "foundation/shared_routines.h"
#include "platform/masks.h"
#include "platform/ui/boxes.h"
#include "platform/ui/frmStatus.h"
#include "platform/ui/screen_registry.h"
#include "reports/audit/prtDiscrepancy.h"
#include "reports/checks/due_checks.h"
#include "reports/frame/report_start.h"
#include "reports/lists/prtContactList.h"

namespace {
using List = std::optional<ReportJobParts> (*)(Connection& store);

std::optional<ReportJobParts> receivableDueChecks(Connection& store) {
    return dueChecksReport(store, prtReceivableDueChecks, checksDue(prtReceivableDueChecks));
}

std::optional<ReportJobParts> payableDueChecks(Connection& store) {
    return dueChecksReport(store, prtPayableDueChecks, checksDue(prtPayableDueChecks));
}

std::optional<ReportJobParts> contacts(Connection& store) {
    return contactListReport(
        store, "SELECT * FROM tblContactMaster ORDER BY ContactName ASC",
        "Total No. of Records = " + formatCount(CountRecords(store, "tblContactMaster")));
}

std::optional<ReportJobParts> discrepancies(Connection& store) {
    frmStatus status;
    return discrepancyReport(store, status);
}

void show(List list) {
    guarded([list] { previewFromEntry(list(StoreConnection())); });
}
}  // namespace

void registerMenuLists() {
    const std::pair<const char*, List> lists[] = {{"prtReceivableDueChecks", receivableDueChecks},
                                                  {"prtPayableDueChecks", payableDueChecks},
                                                  {"prtContactList", contacts},
                                                  {"prtDiscrepancy", discrepancies}};
    for (const auto& [name, list] : lists)
        ScreenRegistry::instance().addWindow(name, [list = list](const ScreenArguments&) { show(list); });
}
