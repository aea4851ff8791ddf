#include "reports/register.h"

#include "platform/ui/screen_registry.h"
#include "reports/documents/frmPrint.h"

void registerReportScreens() {
    ScreenRegistry& screens = ScreenRegistry::instance();
    screens.add("frmPrint", [] { return new frmPrint; });
}
