#include "masters/frmItem.h"
#include "platform/ui/data_grid.h"
#include "shell/frame_fixture.h"
#include "support/screen_driver.h"

using person::press;

// The item master within the main window: all fields of its record are locked when it opens.
TEST_F(FrameTest, AScreenThatOpensLockedTakesKeysAtOnce) {
    addItem(store(), {"I1", "RICE"});
    ScreenRegistry::instance().add("frmItem", [] { return new frmItem; });
    logIn();
    for (int time = 1; time <= 2; ++time) {
        choose("mnuMaintenanceItem_0");
        person::settle();
        EXPECT_EQ(person::focusName(), "cboSearchBy") << time;
        press(Qt::Key_A, Qt::AltModifier);
        EXPECT_EQ(person::find<DataGrid>(frame, "dbgMyGrid")->currentText("Description"), "RICE");
        press(Qt::Key_Escape);
        EXPECT_FALSE(ScreenRegistry::instance().opened("frmItem"));
    }
}
