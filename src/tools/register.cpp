#include "tools/register.h"

#include "platform/ui/screen_registry.h"
#include "tools/calculator/frmCalculator.h"
#include "tools/calculator/last_total.h"

void registerToolScreens() {
    ScreenRegistry& screens = ScreenRegistry::instance();
    screens.add("frmCalculator", [] { return new frmCalculator; });
    installLastTotalKey();
}
