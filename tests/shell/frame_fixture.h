#pragma once
#include "platform/ui/child_screen.h"
#include "platform/ui/screen_registry.h"
#include "shell/mdiMain.h"
#include "support/box_script.h"
#include "support/test_store.h"
#include "support/users.h"

#include <QAction>
#include <QPointer>

// A screen of the tests, with some of the commands. It counts what the frame calls.
class TestScreen : public RecordScreen {
    Q_OBJECT
  public:
    explicit TestScreen(const QString& name, Kind kind = Child);
    bool queryUnload() override { return leaves; }

    QStringList calls;
    bool leaves = true;

  public slots:
    void NewRecord() { calls << "NewRecord"; }
    void EditRecord();  // throws
    void DeleteRecord() { calls << "DeleteRecord"; }
    void RefreshRecord() { calls << "RefreshRecord"; }
    void PrintRecord() { calls << "PrintRecord"; }
};

// The main window of a user who has just logged in, with screens of the tests behind every name that its
// menus open.
class FrameTest : public SessionTest {
  protected:
    void SetUp() override;
    void TearDown() override;

    // Logs in and shows the frame, at 1024 by 740.
    void logIn(const QString& userCode = "ADMIN");
    QAction* item(const QString& name) const { return frame->findChild<QAction*>(name); }
    void choose(const QString& name) { item(name)->trigger(); }
    TestScreen* opened(const QString& name) const;
    TestScreen* open(const QString& name);

    QPointer<mdiMain> frame;
    QStringList windows;  // what was opened that is no child screen
    int ended = 0;
};

// The names of the screens that menus and panel open.
QStringList screensOfTheMenus();
