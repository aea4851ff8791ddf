#include "masters/register.h"

#include "masters/frmContacts.h"
#include "masters/frmItem.h"
#include "masters/frmUnitGrid.h"
#include "platform/ui/screen_registry.h"

void registerMasterScreens() {
    ScreenRegistry& screens = ScreenRegistry::instance();
    screens.add("frmItem", [] { return new frmItem; });
    screens.add("frmContacts", [] { return new frmContacts; });
    screens.add("frmUnitGrid", [] { return new frmUnitGrid; });
}
