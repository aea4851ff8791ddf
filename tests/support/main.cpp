#include <QApplication>
#include <QLocale>

#include <gtest/gtest.h>

// Every test program: an application without a display, in a fixed locale.
int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QLocale::setDefault(QLocale::c());
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
