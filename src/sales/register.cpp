#include "sales/register.h"

#include "platform/ui/screen_registry.h"
#include "sales/frmReceiptEntry.h"
#include "sales/frmReceiptGrid.h"
#include "sales/frmSalesEntry.h"
#include "sales/frmSalesGrid.h"
#include "sales/received_checks.h"

void registerSalesScreens() {
    ScreenRegistry& screens = ScreenRegistry::instance();
    screens.add("frmSalesGrid", [] { return new frmSalesGrid; });
    screens.add("frmReceiptGrid", [] { return new frmReceiptGrid; });
    screens.add("frmSalesEntry", [] { return new frmSalesEntry; });
    screens.add("frmReceiptEntry", [] { return new frmReceiptEntry; });
    screens.add("frmNegReceivableChecks", [] { return new CheckList(receivedCheckScreens); });
}
