#include "reports/register.h"

#include "platform/ui/screen_registry.h"
#include "reports/audit/frmPrintAudit.h"
#include "reports/checks/frmReceipts.h"
#include "reports/documents/frmPrint.h"
#include "reports/inventory/frmReorder.h"
#include "reports/journals/frmPrintTransactions.h"
#include "reports/menu_lists.h"

void registerReportScreens() {
    ScreenRegistry& screens = ScreenRegistry::instance();
    screens.add("frmPrint", [] { return new frmPrint; });
    screens.add("frmPrintAudit", [] { return new frmPrintAudit; });
    screens.add("frmPrintTransactions", [] { return new frmPrintTransactions; });
    screens.add("frmReceipts", [] { return new frmReceipts; });
    screens.add("frmReorder", [] { return new frmReorder; });
    registerMenuLists();
}
