#include "platform/ui/guarded_application.h"
#include "support/box_script.h"
#include "support/modal_watch.h"
#include "support/offscreen_desk.h"
#include "support/test_server.h"

#include <QLocale>
#include <QStorageInfo>

#include <gtest/gtest.h>

// A save waits for the disk; the stores of the tests lie in memory where there is room, and run ten times as
// fast.
static void keepStoresInMemory() {
    const QStorageInfo memory("/dev/shm");
    constexpr qint64 room = 256 * 1024 * 1024;
    if (qEnvironmentVariableIsEmpty("TMPDIR") && memory.isValid() && !memory.isReadOnly() &&
        memory.bytesAvailable() > room)
        qputenv("TMPDIR", "/dev/shm");
}

// Whatever printers the machine has, no test prints on them, or stops at the dialog that chooses one.
static void hidePrinters() { qputenv("CUPS_SERVER", "/nowhere"); }

// Every test program: an application without a display, in a fixed locale, where a box that no test expects
// fails instead of waiting for a person.
int main(int argc, char** argv) {
    useOffscreenDesk();
    keepStoresInMemory();
    hidePrinters();
    const GuardedApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QLocale::setDefault(QLocale::c());
    const ModalWatch watch;
    failOnUnexpectedBoxes();
    ::testing::InitGoogleTest(&argc, argv);
    watchTestDatabases();
    return RUN_ALL_TESTS();
}
