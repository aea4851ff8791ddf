#include "shell/register.h"

#include "platform/ui/screen_registry.h"
#include "shell/frmForUpload.h"
#include "shell/frmReorder.h"

void registerShellScreens() {
    ScreenRegistry& screens = ScreenRegistry::instance();
    screens.add("frmForUpload", [] { return new frmForUpload; });
    screens.add("frmReorder", [] { return new frmReorder; });
}
