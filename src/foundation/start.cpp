#include "foundation/start.h"

#include "foundation/frmServerPassword.h"
#include "foundation/schema.h"
#include "foundation/session.h"
#include "foundation/setting_files.h"
#include "foundation/store_place.h"
#include "platform/store/place.h"
#include "platform/store/store_care.h"
#include "platform/ui/boxes.h"
#include "platform/ui/frmStatus.h"
#include "platform/ui/screen_registry.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>

namespace {

std::function<void()>& endDoor() {
    static std::function<void()> door;
    return door;
}

std::function<QSize()>& sizeDoor() {
    static std::function<QSize()> door;
    return door;
}

QSize screenSize() {
    if (sizeDoor()) return sizeDoor()();
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->size() * screen->devicePixelRatio() : QSize();
}

bool openLogin() {
    return guarded([] { ScreenRegistry::instance().open("frmOpening"); });
}

// A store that cannot even tell is left to the login's own box.
bool hasUsers() {
    try {
        return !StoreConnection().execute("SELECT 1 FROM tblUserMaster LIMIT 1").eof();
    } catch (const StoreError&) {
        return true;
    }
}

}  // namespace

// A server that lacks a password: the person is asked for it, once.
static void openPlace(Connection& store, const QString& place) {
    try {
        store.open(place, passwordFor(place));
    } catch (const StoreError& error) {
        if (error.number() != needsPassword) throw;
        const auto password = frmServerPassword::ask();
        if (!password) throw;
        store.open(place, *password);
    }
}

// Damage after a sudden end is found here, and not by a save in the middle of the day.
static void openSound(Connection& store) {
    openPlace(store, storePlace());
    if (!store.wasLeftOpen()) return;
    frmStatus progress;
    checkStore(store, progress);
}

bool OpenDatabase() {
    try {
        openSound(StoreConnection());
        return session().StoreOpen = true;
    } catch (const StoreError& error) {
        StoreConnection().close();
        showBox(exclamation("Connection Error", error.text()));
        return session().StoreOpen = false;
    }
}

bool Main() {
    registerSchema();
    if (!OpenDatabase()) {
        // A server has its own box, which told all.
        if (!isServer(storePlace()))
            showBox(exclamation(
                "Database Not Found!",
                "Database not found!, Please Place the Database with the Same Path as the .EXE File"));
        return false;
    }
    if (!hasUsers()) {
        showBox(exclamation("No Users!",
                            "This store holds no users, so nobody can log in. Please put a copy of the "
                            "database in its place that does."));
        return false;
    }
    ReadPrinterIni();
    return openLogin();
}

void showLogin() {
    if (!openLogin()) endProcess();
}

void endProcess() {
    if (endDoor()) return endDoor()();
    QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(); });
}

BetweenWindows::BetweenWindows() { QGuiApplication::setQuitOnLastWindowClosed(false); }
BetweenWindows::~BetweenWindows() { QGuiApplication::setQuitOnLastWindowClosed(true); }

bool CheckResolution() {
    const QSize size = screenSize();
    return size.width() >= 1024 && size.height() >= 768;
}

void setEndProcessDoor(std::function<void()> door) { endDoor() = std::move(door); }
void setScreenSizeDoor(std::function<QSize()> door) { sizeDoor() = std::move(door); }
