#include "reports/register.h"

#include "platform/ui/screen_registry.h"
#include "reports/audit/frmPrintAudit.h"
#include "reports/checks/frmReceipts.h"
#include "reports/documents/frmPrint.h"
#include "reports/inventory/frmPrintInventory.h"
#include "reports/inventory/frmPrintStockCard.h"
#include "reports/inventory/frmReorder.h"
#include "reports/journals/frmPrintTransactions.h"
#include "reports/labels/frmBarSelection.h"
#include "reports/logbooks/frmPrintLogBook.h"
#include "reports/menu_lists.h"
#include "reports/outstanding/frmPrintOutstanding.h"
#include "reports/quotations/frmPrintQuotation.h"
#include "reports/quotations/frmPrintSalesQuota.h"

void registerReportScreens() {
    ScreenRegistry& screens = ScreenRegistry::instance();
    screens.add("frmBarSelection", [] { return new frmBarSelection; });
    screens.add("frmPrint", [] { return new frmPrint; });
    screens.add("frmPrintAudit", [] { return new frmPrintAudit; });
    screens.add("frmPrintLogBook", [] { return new frmPrintLogBook; });
    screens.add("frmPrintOutstanding", [] { return new frmPrintOutstanding; });
    screens.add("frmPrintQuotation", [] { return new frmPrintQuotation; });
    screens.add("frmPrintSalesQuota", [] { return new frmPrintSalesQuota; });
    screens.add("frmPrintInventory", [] { return new frmPrintInventory; });
    screens.add("frmPrintStockCard", [] { return new frmPrintStockCard; });
    screens.add("frmPrintTransactions", [] { return new frmPrintTransactions; });
    screens.add("frmReceipts", [] { return new frmReceipts; });
    screens.add("frmReorder", [] { return new frmReorder; });
    registerMenuLists();
}
