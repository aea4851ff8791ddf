// Plays a trading day on the real screens, over a fresh demo firm, and tells what happened:
//     play_day SCRIPT FOLDER
// The store, the printed papers and the pictures of the screens go into FOLDER. Ends with 1 when something
// that the script tells did not happen.
//     play_day --pictures FOLDER
// writes one picture of each screen instead, at 1024 x 768 and at 200 %, in light colours and in dark ones,
// and one of the first page of each report.
#include "demo/day_player.h"
#include "demo/firm_figures.h"
#include "demo/played_firm.h"
#include "demo/report_pictures.h"
#include "foundation/session.h"
#include "foundation/start.h"
#include "platform/clock.h"
#include "platform/masks.h"
#include "program.h"
#include "support/dark_desk.h"
#include "support/offscreen_desk.h"
#include "support/program_driver.h"
#include "support/screen_tour.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>

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
    say(QString("The day is done, in %1 seconds. Its papers and pictures of its screens are in %2")
            .arg(QString::number(static_cast<double>(time.elapsed()) / 1000, 'f', 1), folder.absolutePath()));
    return 0;
}

static void takePictures(const QDir& folder) {
    freshDemoFirm(folder);
    if (!Main()) throw DayFault("the program does not start");
    tourScreens("ADMIN", "admin", [&](const QString& name, QWidget*) {
        const QString file = folder.filePath(name + ".png");
        if (!person::picture().save(file)) throw DayFault("cannot write " + file);
        say(file);
    });
}

static void takeReports(const QDir& folder) {
    freshDemoFirm(folder);
    Connection store;
    store.open(folder.filePath(storeFileName), storePassword);
    drawReports(store, folder, say);
}

static int picturesTaken(const QDir& folder, void (*take)(const QDir&) = takePictures) {
    try {
        take(folder);
        return 0;
    } catch (const std::exception& error) {
        say(QString("The pictures failed: %1").arg(QString::fromUtf8(error.what())));
        return 1;
    }
}

// Each scale in a process of its own: it is fixed when an application starts.
static int picturesAtAllScales(const QDir& folder) {
    const struct {
        const char* scale;
        const char* mode;
        const char* part;
    } desks[] = {{"1", "--pictures-as-scaled", "1024x768"},
                 {"2", "--pictures-as-scaled", "200%"},
                 {"1", "--pictures-in-the-dark", "dark"},
                 {"2", "--pictures-in-the-dark", "dark 200%"},
                 {"1", "--pictures-of-reports", "reports"}};
    for (const auto& [scale, mode, part] : desks) {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_SCALE_FACTOR", scale);
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::ForwardedChannels);
        process.start(QApplication::applicationFilePath(), {mode, folder.filePath(part)});
        if (!process.waitForFinished(-1) || process.exitCode() != 0) return 1;
    }
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
        say("usage: play_day SCRIPT FOLDER, or play_day --pictures FOLDER");
        return 2;
    }
    if (arguments[0] == "--pictures") return picturesAtAllScales(QDir(arguments[1]));
    if (arguments[0] == "--pictures-as-scaled") return picturesTaken(QDir(arguments[1]));
    if (arguments[0] == "--pictures-of-reports") return picturesTaken(QDir(arguments[1]), takeReports);
    if (arguments[0] == "--pictures-in-the-dark") {
        useDarkDesk();
        return picturesTaken(QDir(arguments[1]));
    }
    return played(arguments[0], QDir(arguments[1]));
}
