#include "tools/register.h"

#include "platform/ui/screen_registry.h"
#include "tools/calculator/frmCalculator.h"
#include "tools/calculator/last_total.h"
#include "tools/counter/frmPOSCash.h"
#include "tools/counter/frmPrintPOS.h"
#include "tools/search/frmSearch.h"

void registerToolScreens() {
    ScreenRegistry& screens = ScreenRegistry::instance();
    screens.add("frmCalculator", [] { return new frmCalculator; });
    screens.add("frmPOSCash", [] { return new frmPOSCash; });
    screens.add("frmPrintPOS", [] { return new frmPrintPOS; });
    screens.add("frmSearch", [] { return new frmSearch; });
    installLastTotalKey();
}
