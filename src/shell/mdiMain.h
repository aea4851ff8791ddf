#pragma once
#include "platform/ui/screen_registry.h"
#include "shell/frame_state.h"
#include "shell/menu_catalogue.h"

#include <QMainWindow>
#include <QStatusBar>
#include <QToolBar>

class ChildArea;
class FrameMenus;
class QStackedWidget;
class frmShortcuts;

// The main window, from login to logoff or exit: it holds the working screens, and takes the commands of
// menus, tool bar, panel and keys to them. It knows no screen's type.
class mdiMain : public QMainWindow, public ScreenHost {
    Q_OBJECT
  public:
    mdiMain();
    ~mdiMain() override;

    // What comes before it is seen: the date and time, the user's rights, the printers. False for a user who
    // has no row.
    bool load();
    // What opens by itself once it is seen.
    void greet();

    void host(ChildScreen* screen) override;
    void bringForward(ChildScreen* screen) override;

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void build();
    void startTimers();
    void run(const MenuAction& action, const QString& caption);
    void run(const OpenScreen& action, const QString& caption);
    void run(const RecordCommand& action, const QString& caption);
    void run(FrameCommand action, const QString& caption);
    void run(std::monostate, const QString&) {}
    void runShortcut(const QString& key, const QString& caption);
    void readActiveChild();
    void tmrMain_Timer();
    void tmrShortcut_Timer();
    bool closeAll();
    void logOff();
    void exitProgram();

    QStackedWidget* stack_;
    ChildArea* area_;
    QToolBar* tbrMain;
    QWidget* cbrMain;
    QStatusBar* sbrMain;
    FrameMenus* menus_;
    FrameState state_;
    frmShortcuts* panel_ = nullptr;
};

// Opens the main window for the user who has logged in, or ends the process for one who has no row.
void showMain();
