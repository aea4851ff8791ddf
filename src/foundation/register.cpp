#include "foundation/register.h"

#include "foundation/frmDateChecker.h"
#include "foundation/frmOpening.h"
#include "platform/ui/screen_registry.h"

void registerFoundationScreens() {
    ScreenRegistry& registry = ScreenRegistry::instance();
    registry.addWindow("frmOpening", [](const ScreenArguments&) { showOpening(); });
    registry.addWindow("frmDateChecker", [](const ScreenArguments&) { frmDateChecker().showModal(); });
}
