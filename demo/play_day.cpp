// Plays a trading day on the real screens, over a fresh demo firm, and tells what happened:
//     play_day SCRIPT FOLDER
// The store and the pictures of the screens go into FOLDER. Ends with 1 when something that the script tells
// did not happen.
#include "demo/day_player.h"
#include "demo/firm_figures.h"
#include "demo/played_firm.h"
#include "foundation/session.h"
#include "foundation/start.h"
#include "platform/clock.h"
#include "platform/masks.h"
#include "program.h"
#include "support/offscreen_desk.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>

#include <gtest/gtest.h>
#include <cstdio>

static void say(const QString& line) {
    std::puts(qPrintable(line));
    std::fflush(stdout);
}

static QList<DayStep> readScript(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) throw DayFault(path + ": " + file.errorString());
    return readDayScript(QString::fromUtf8(file.readAll()));
}

static void playDay(const QString& script, const QDir& folder) {
    const QList<DayStep> steps = readScript(script);
    say("A fresh demo firm in " + folder.absolutePath());
    freshDemoFirm(folder);
    if (!Main()) throw DayFault("the program does not start");
    const QDate today = Clock::today();
    const FirmFigures before = firmFigures(StoreConnection(), today);
    DayPlayer(folder.path(), say).play(steps);
    const FirmFigures after = firmFigures(StoreConnection(), today);
    say("");
    say("The firm on " + formatDate(today) + ":");
    for (const QString& line : figuresTable(before, after)) say(line);
}

static int played(const QString& script, const QDir& folder) {
    QElapsedTimer time;
    time.start();
    try {
        playDay(script, folder);
    } catch (const DayScriptError& error) {
        say(QString("%1: %2").arg(script, QString::fromUtf8(error.what())));
        return 1;
    } catch (const std::exception& error) {
        say(QString("The day failed: %1").arg(QString::fromUtf8(error.what())));
        return 1;
    }
    say("");
    say(QString("The day is done, in %1 seconds. Pictures of its screens are in %2")
            .arg(QString::number(static_cast<double>(time.elapsed()) / 1000, 'f', 1), folder.absolutePath()));
    return 0;
}

int main(int argc, char** argv) {
    useOffscreenDesk();
    QApplication application(argc, argv);
    setUpProgram();
    // What the driver of the screens finds amiss ends the day.
    GTEST_FLAG_SET(throw_on_failure, true);
    const QStringList arguments = QApplication::arguments().mid(1);
    if (arguments.size() != 2) {
        say("usage: play_day SCRIPT FOLDER");
        return 2;
    }
    return played(arguments[0], QDir(arguments[1]));
}
