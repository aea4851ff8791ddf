#include "support/crash_runner.h"

#include "foundation/session.h"
#include "foundation/store_place.h"
#include "support/files.h"
#include "support/test_server.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>
#include <csignal>

namespace {
constexpr int timeLimit = 30000;  // milliseconds
constexpr int mostStatements = 2000;
constexpr int threwExitCode = 3;

[[noreturn]] void dieSuddenly() {
    kill(getpid(), SIGKILL);
    _exit(threwExitCode);
}

[[noreturn]] void runAndDie(int statement, int acknowledgePipe, const QString& place,
                            const std::function<void(Connection&)>& action) {
    try {
        StoreConnection().open(place, passwordFor(place));
        int left = statement;
        Connection::setStatementHook([&left](const QString&) {
            if (--left == 0) dieSuddenly();
        });
        action(StoreConnection());
        const char done = '!';
        if (write(acknowledgePipe, &done, 1) == 1) dieSuddenly();
    } catch (const std::exception& error) {
        fprintf(stderr, "the action threw: %s\n", error.what());
    }
    _exit(threwExitCode);
}

// The way the process ended, or nothing when it hung and was ended here.
std::optional<int> endOf(pid_t process) {
    QElapsedTimer timer;
    timer.start();
    int status = 0;
    while (waitpid(process, &status, WNOHANG) == 0) {
        if (timer.hasExpired(timeLimit)) {
            kill(process, SIGKILL);
            waitpid(process, &status, 0);
            return std::nullopt;
        }
        QThread::msleep(1);
    }
    return status;
}

// Runs the action to its end or to the statement. Fails the test unless the process was killed as planned.
CrashPoint crashAt(int statement, const QString& place, const std::function<void(Connection&)>& action) {
    int ends[2];
    EXPECT_EQ(pipe(ends), 0);
    const pid_t process = fork();
    if (process == 0) runAndDie(statement, ends[1], place, action);
    EXPECT_GT(process, 0);
    close(ends[1]);
    const std::optional<int> end = endOf(process);
    EXPECT_TRUE(end && WIFSIGNALED(*end) && WTERMSIG(*end) == SIGKILL)
        << (end ? "the action failed" : "the action hung") << " at statement " << statement;
    char done = 0;
    const bool acknowledged = read(ends[0], &done, 1) == 1;
    close(ends[0]);
    return {statement, acknowledged};
}

// Opens what the crash has left, and checks it.
void checkLeftover(const QString& place, const CrashPoint& point,
                   const std::function<void(Connection&, const CrashPoint&)>& check) {
    SCOPED_TRACE("killed at statement " + std::to_string(point.statement));
    StoreConnection().open(place, passwordFor(place));
    if (!onTestServer()) {
        EXPECT_EQ(StoreConnection().execute("PRAGMA integrity_check").textAt(0), "ok");
    }
    check(StoreConnection(), point);
    StoreConnection().close();
}
}  // namespace

QString copyOfStore(const QString& place, const QString& folder) {
    if (onTestServer()) {
        const QString copy = newCopyOf(place);
        writeFile(folder + "/Store.ini", copy.toUtf8());
        return copy;
    }
    const QString copy = folder + '/' + storeFileName;
    EXPECT_TRUE(QFile::copy(place, copy));
    return copy;
}

int crashAtEveryStatement(const std::function<void(Connection&)>& action,
                          const std::function<void(Connection&, const CrashPoint&)>& check) {
    EXPECT_FALSE(StoreConnection().isOpen()) << "close the session's connection first";
    const QString formerFolder = programFolder().path();
    const QString place = storePlace();
    for (int statement = 1; statement <= mostStatements; ++statement) {
        const QTemporaryDir folder;
        const QString copy = copyOfStore(place, folder.path());
        setProgramFolder(folder.path());
        const CrashPoint point = crashAt(statement, copy, action);
        checkLeftover(copy, point, check);
        setProgramFolder(formerFolder);
        if (point.acknowledged) return statement - 1;
        if (::testing::Test::HasFailure()) break;
    }
    ADD_FAILURE() << "the action never came to its end";
    return 0;
}
