#include "foundation/frmChangePassword.h"
#include "foundation/frmDateChecker.h"
#include "foundation/frmOpening.h"
#include "shell/frame_fixture.h"
#include "shell/frmAbout.h"
#include "shell/frmCompanySetup.h"
#include "shell/frmRecordLock.h"
#include "shell/frmShortcuts.h"
#include "support/screen_checks.h"

#include <QTest>

namespace {

using EveryScreen = FrameTest;

TEST_F(EveryScreen, IsReadableNamedAndWalkedAsTheEyeGoes) {
    const std::pair<const char*, std::function<QWidget*()>> screens[] = {
        {"frmOpening", [] { return new frmOpening; }},
        {"frmChangePassword", [] { return new frmChangePassword("ADMIN"); }},
        {"frmDateChecker", [] { return new frmDateChecker; }},
        {"frmAbout", [] { return new frmAbout; }},
        {"frmCompanySetup", [] { return new frmCompanySetup; }},
        {"frmRecordLock", [] { return new frmRecordLock; }},
    };
    for (const auto& [name, make] : screens) {
        SCOPED_TRACE(name);
        const std::unique_ptr<QWidget> screen(make());
        EXPECT_EQ(screen->objectName(), name);
        screen->show();
        QTest::qWait(1);
        EXPECT_EQ(check::faults(screen.get()).join('\n').toStdString(), "");
    }
}

TEST_F(EveryScreen, AndSoIsTheFrame) {
    logIn();
    opened("frmReorder")->unload();
    QTest::qWait(150);
    auto* panel = frame->findChild<frmShortcuts*>();
    ASSERT_TRUE(panel->isVisible());
    EXPECT_EQ(check::faults(panel).join('\n').toStdString(), "");
    EXPECT_EQ(check::unnamedControls(frame).join('\n').toStdString(), "");
}

}  // namespace
