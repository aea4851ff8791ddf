#include "shell/mdiMain.h"

#include "foundation/session.h"
#include "foundation/setting_files.h"
#include "foundation/shared_routines.h"
#include "foundation/start.h"
#include "platform/parsing.h"
#include "platform/ui/desk_memory.h"
#include "platform/ui/editing.h"
#include "platform/ui/file_dialogs.h"
#include "platform/ui/icons.h"
#include "shell/child_area.h"
#include "shell/frame_activation.h"
#include "shell/frame_keys.h"
#include "shell/frame_menus.h"
#include "shell/frame_tasks.h"
#include "shell/frmShortcuts.h"
#include "shell/late_calls.h"
#include "shell/screen_opening.h"
#include "shell/user_menus.h"
#include "shell/window_list.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <QUrl>
#include <QVBoxLayout>

namespace {

constexpr const char* deliveredCompanyName = "Zevrin";

QToolBar* makeToolBar() {
    auto* tools = new QToolBar;
    tools->setObjectName("tbrMain");
    tools->setAccessibleName("Tool bar");
    tools->setToolButtonStyle(Qt::ToolButtonIconOnly);
    tools->setIconSize(QSize(24, 24));
    tools->setMovable(false);
    return tools;
}

QStatusBar* makeStatusBar(QMainWindow* frame) {
    QStatusBar* bar = frame->statusBar();
    bar->setObjectName("sbrMain");
    return bar;
}

QString userCaption() {
    return "Current User : " + trim(session().CurrentUserCode) + " - " + trim(session().CurrentUserName);
}

// Each user has a desk of their own. The code may hold signs that no file name takes.
QString deskFile() {
    const QByteArray user = QUrl::toPercentEncoding(trim(session().CurrentUserCode));
    return programFolder().filePath(QString("Desk-%1.ini").arg(QString::fromLatin1(user)));
}

void restorePointer() {
    while (QApplication::overrideCursor()) QApplication::restoreOverrideCursor();
}

}  // namespace

mdiMain::mdiMain()
    : stack_(new QStackedWidget),
      area_(new ChildArea(this)),
      tbrMain(makeToolBar()),
      cbrMain(new QFrame),
      sbrMain(makeStatusBar(this)),
      menus_(new FrameMenus(menuBar(), tbrMain)),
      state_(sbrMain) {
    setObjectName("mdiMain");
    setWindowTitle("Zevrin");
    setWindowIcon(bundledIcon("bird"));
    setAttribute(Qt::WA_DeleteOnClose);
    build();
    ScreenRegistry::instance().setHost(this);
    connect(menus_, &FrameMenus::chosen, this,
            [this](const MenuAction& action, const QString& caption) { run(action, caption); });
    connect(area_, &ChildArea::childrenChanged, this, &mdiMain::readActiveChild);
    listChildrenIn(menus_->menu("mnuWindow"), area_);
    new FrameKeys(this, *menus_);
}

// What its children tell on their way out reaches a frame that is no longer one.
mdiMain::~mdiMain() {
    area_->disconnect(this);
    desk_memory::close();
    if (ScreenRegistry::instance().host() == this) ScreenRegistry::instance().setHost(nullptr);
}

void mdiMain::build() {
    cbrMain->setObjectName("cbrMain");
    auto* band = new QHBoxLayout(cbrMain);
    band->setContentsMargins(4, 2, 4, 2);
    band->addWidget(tbrMain);
    stack_->addWidget(area_);
    auto* centre = new QWidget;
    auto* layout = new QVBoxLayout(centre);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(cbrMain);
    layout->addWidget(stack_, 1);
    setCentralWidget(centre);
    resize(1024, 740);
}

bool mdiMain::load() {
    session().CurrentUserCaption = userCaption();
    desk_memory::open(deskFile());
    state_.setUserName(session().CurrentUserCaption);
    openIfKnown("frmDateChecker");
    if (!LoadUserMenus(*menus_, StoreConnection())) return false;
    ReadPrinterIni();
    ReadCheckPrinterIni();
    ReadReceiptPrinterIni();
    panel_ = new frmShortcuts(StoreConnection());
    stack_->addWidget(panel_);
    connect(panel_, &frmShortcuts::chosen, this, &mdiMain::runShortcut);
    return true;
}

void mdiMain::greet() {
    passOverErrors("greeting", [] {
        if (GetCompanyName(StoreConnection()) == deliveredCompanyName) openIfKnown("frmCompanySetup");
    });
    const auto showReorder = [] { passOverErrors("frmReorder", &remindOfReorder); };
    showReorder();
    connect(new FrameActivation(this), &FrameActivation::cameBack, this, showReorder);
    startTimers();
}

// The area must be seen before a child can be active in it.
void mdiMain::host(ChildScreen* screen) {
    stack_->setCurrentWidget(area_);
    area_->host(screen);
}

void mdiMain::bringForward(ChildScreen* screen) { area_->bringForward(screen); }

void mdiMain::startTimers() {
    const auto start = [this](const char* name, void (mdiMain::*tick)()) {
        auto* timer = new QTimer(this);
        timer->setObjectName(name);
        connect(timer, &QTimer::timeout, this, tick);
        timer->start(100);
    };
    start("tmrShortcut", &mdiMain::tmrShortcut_Timer);
    start("tmrMain", &mdiMain::tmrMain_Timer);
    tmrShortcut_Timer();
}

void mdiMain::tmrMain_Timer() {
    restorePointer();
    state_.mirror(area_->activeChild());
}

// The panel lies over the empty frame, and steps aside for any other screen.
void mdiMain::tmrShortcut_Timer() {
    const bool empty = ScreenRegistry::instance().openScreens().isEmpty();
    if (empty == (stack_->currentWidget() == panel_)) return;
    stack_->setCurrentWidget(empty ? static_cast<QWidget*>(panel_) : area_);
    if (empty) panel_->takeFocus();
}

// What the screens change in the frame: the Delete of the active one, the reports of any.
void mdiMain::readActiveChild() {
    tmrShortcut_Timer();
    const ChildScreen* active = area_->activeChild();
    menus_->item("mnuRecordItem_3")->setEnabled(!active || active->deleteAllowed());
    const QList<ChildScreen*> screens = area_->children();
    const bool hidden = std::any_of(screens.begin(), screens.end(),
                                    [](const ChildScreen* screen) { return screen->hidesReportMenu(); });
    menus_->menu("mnuReport")->menuAction()->setVisible(!hidden);
    menus_->showCommandsOf(active);
    const auto isEdited = [](const ChildScreen* screen) { return screen->property("mblnUpdated").toBool(); };
    if (std::none_of(screens.begin(), screens.end(), isEdited)) state_.nothingIsEdited();
}

void mdiMain::run(const MenuAction& action, const QString& caption) {
    passOverErrors(caption, [&] { std::visit([&](const auto& chosen) { run(chosen, caption); }, action); });
}

void mdiMain::run(const OpenScreen& action, const QString& caption) {
    if (action.restsOnCosting && !goesOnWithPendingRows()) return;
    openChosenScreen(action.screen, {action.kind, {}, action.caption, action.choice}, plainCaption(caption));
}

void mdiMain::run(const RecordCommand& action, const QString&) {
    callCommand(area_->activeChild(), action.routine);
}

void mdiMain::run(FrameCommand action, const QString&) {
    using enum FrameCommand;
    switch (action) {
        case RecomputeBalances:
            return recomputeBalances();
        case SetUpPrinter:
            desk::setUpPrinter(this);
            return;
        case LogOff:
            return logOff();
        case Exit:
            return exitProgram();
        case Cut:
            return editing::cut();
        case Copy:
            return editing::copy();
        case Paste:
            return editing::paste();
        case SelectAll:
            return editing::selectAll();
        case ToggleToolbar:
            return cbrMain->setVisible(menus_->item("mnuViewItem_0")->isChecked());
        case ToggleStatusBar:
            return sbrMain->setVisible(menus_->item("mnuViewItem_1")->isChecked());
        case RepairReportAnalyzer:
            return openProgramFile("ZevrinDemo.exe");
        case TileHorizontally:
            return area_->tile(Qt::Horizontal);
        case TileVertically:
            return area_->tile(Qt::Vertical);
        case Cascade:
            return area_->cascade();
        case ArrangeIcons:
            return area_->arrangeIcons();
        case CloseAll:
            closeAll();
            return;
        case Help:
            return openProgramFile("Zevrin.hlp");
        case ContactSupport:
            return contactSupport();
    }
}

void mdiMain::runShortcut(const QString& key, const QString& caption) {
    if (key == "Switch") return logOff();
    if (key == "Exit") return exitProgram();
    if (key == "frmHelp") return openProgramFile("Zevrin.hlp");
    passOverErrors(key, [&] { openChosenScreen(key, {}, caption); });
}

// All are asked, in the order they were opened, before the first is closed: when one stays, all stay.
bool mdiMain::closeAll() {
    const QList<ChildScreen*> open = ScreenRegistry::instance().openScreens();
    const QList<QPointer<ChildScreen>> screens(open.begin(), open.end());
    const auto agrees = [](const QPointer<ChildScreen>& screen) {
        return !screen || screen->agreeToUnload();
    };
    const bool all = std::ranges::all_of(screens, agrees);
    for (const QPointer<ChildScreen>& screen : screens)
        if (screen && all)
            screen->unload();
        else if (screen)
            screen->stayOpen();
    return all;
}

void mdiMain::closeEvent(QCloseEvent* event) {
    event->setAccepted(closeAll());
    if (event->isAccepted()) passOverErrors("closing reminder", &remindOfEndOfDay);
}

void mdiMain::logOff() {
    const BetweenWindows goingOn;
    if (close()) showLogin();
}

void mdiMain::exitProgram() {
    if (close()) endProcess();
}

void showMain() {
    auto frame = std::make_unique<mdiMain>();
    if (!frame->load()) return endProcess();
    frame->showMaximized();
    frame.release()->greet();
}
