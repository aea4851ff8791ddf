#include "purchases/register.h"

#include "platform/ui/screen_registry.h"
#include "purchases/frmDisbursementEntry.h"
#include "purchases/frmDisbursementGrid.h"
#include "purchases/frmPurchaseEntry.h"
#include "purchases/frmPurchaseGrid.h"
#include "purchases/issued_checks.h"

void registerPurchaseScreens() {
    ScreenRegistry& screens = ScreenRegistry::instance();
    screens.add("frmPurchaseGrid", [] { return new frmPurchaseGrid; });
    screens.add("frmDisbursementGrid", [] { return new frmDisbursementGrid; });
    screens.add("frmDisbursementEntry", [] { return new frmDisbursementEntry; });
    screens.add("frmPurchaseEntry", [] { return new frmPurchaseEntry; });
    screens.add("frmNegPayableChecks", [] { return new CheckList(issuedCheckScreens); });
}
