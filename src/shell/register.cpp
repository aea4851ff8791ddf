#include "shell/register.h"

#include "platform/ui/screen_registry.h"
#include "shell/frmAbout.h"
#include "shell/frmCompanySetup.h"
#include "shell/frmForUpload.h"
#include "shell/frmRecordLock.h"
#include "shell/frmUserDetails.h"
#include "shell/frmUserGrid.h"
#include "shell/mdiMain.h"

void registerShellScreens() {
    ScreenRegistry& screens = ScreenRegistry::instance();
    screens.addWindow("mdiMain", [](const ScreenArguments&) { showMain(); });
    screens.addWindow("frmAbout", [](const ScreenArguments&) { frmAbout().showModal(); });
    screens.add("frmCompanySetup", [] { return new frmCompanySetup; });
    screens.add("frmForUpload", [] { return new frmForUpload; });
    screens.add("frmRecordLock", [] { return new frmRecordLock; });
    screens.add("frmUserDetails", [] { return new frmUserDetails; });
    screens.add("frmUserGrid", [] { return new frmUserGrid; });
}
