#include "support/box_script.h"

#include <QApplication>
#include <QLocale>

#include <gtest/gtest.h>

// Every test program: an application without a display, in a fixed locale, where a box that no test expects
// fails instead of waiting for a person.
int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QLocale::setDefault(QLocale::c());
    failOnUnexpectedBoxes();
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
