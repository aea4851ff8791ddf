#include "platform/store/store_care.h"

#include "platform/clock.h"
#include "platform/progress_scope.h"
#include "platform/store/connection.h"
#include "platform/store/copy_store.h"
#include "platform/store/place.h"

#include <QDir>
#include <QFileInfo>
#include <QThread>

#include <fcntl.h>
#include <unistd.h>
#include <atomic>
#include <exception>
#include <thread>

namespace {
constexpr qsizetype keptCopies = 7;
constexpr qint64 barLength = 1000;

// Runs one long statement on a connection of its own, which only reads, beside the window: that goes on
// painting and may read, too, which it must not while its own connection works.
void runAside(const QString& path, Progress& progress, const std::function<void(Connection&)>& work) {
    std::exception_ptr failure;
    std::atomic<bool> done = false;
    std::thread aside([&] {
        try {
            Connection store;
            store.openToRead(path);
            work(store);
        } catch (...) {
            failure = std::current_exception();
        }
        done = true;
    });
    // How long it will take is not known: the bar goes on ever more slowly.
    for (double left = barLength; !done; left *= 0.998) {
        progress.setValue(barLength - static_cast<qint64>(left));
        QThread::msleep(5);
    }
    aside.join();
    if (failure) std::rethrow_exception(failure);
}

QStringList complaints(Connection& store, const QString& check) {
    QStringList lines;
    for (auto row = store.execute(check); !row.eof(); row.moveNext())
        if (row.textAt(0) != "ok") lines += row.textAt(0);
    return lines;
}

[[noreturn]] void fail(const QString& text) { throw StoreError(StoreError::general, text); }

void requireSound(Connection& store) {
    QString fault;
    try {
        fault = complaints(store, "PRAGMA quick_check(1)").value(0);
    } catch (const StoreError& error) {
        if (error.number() == StoreError::busy) throw;
        fault = error.text();
    }
    if (!fault.isEmpty())
        fail(QString(
                 "The store \"%1\" is damaged: %2\nPlease go back to the newest copy in the folder \"%3\".")
                 .arg(store.path(), fault, backupFolder));
}

// On the disk before it counts: what was written, and the names in the folder.
void flush(const QString& path) {
    const int file = open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    const bool flushed = file >= 0 && fsync(file) == 0;
    if (file >= 0) close(file);
    if (!flushed) fail(QString("The copy \"%1\" cannot be written.").arg(path));
}

void copyInto(Connection& store, const QString& path) {
    store.run({"VACUUM INTO ?", {path}});
    flush(path);
    Connection copy;
    copy.openToRead(path);
    requireSound(copy);
}

void removeOldCopies(const QDir& folder, const QString& pattern) {
    QStringList copies = folder.entryList({pattern}, QDir::Files, QDir::Name);
    while (copies.size() > keptCopies) QFile::remove(folder.filePath(copies.takeFirst()));
}

// Under a name that no copy bears until it is whole.
void makeCopy(const QString& store, const QString& unfinished, const QString& copy, Progress& progress) {
    QFile::remove(unfinished);
    try {
        runAside(store, progress, [&](Connection& reader) { copyInto(reader, unfinished); });
        if (rename(QFile::encodeName(unfinished).constData(), QFile::encodeName(copy).constData()) != 0)
            fail(QString("The file \"%1\" cannot be written.").arg(copy));
    } catch (const StoreError& error) {
        QFile::remove(unfinished);
        throw StoreError(error.number(), "The copy of the store could not be made. " + error.text());
    }
}
}  // namespace

void checkStore(Connection& store, Progress& progress) {
    const ProgressScope scope(progress, "Please Wait While System Checks the Store...", barLength);
    runAside(store.path(), progress, requireSound);
    store.settleLeftOpen();
}

QStringList damagesOf(Connection& store) {
    if (!isOnServer(store)) return complaints(store, "PRAGMA integrity_check");
    try {
        fingerprintOf(store);
        return {};
    } catch (const StoreError& error) {
        return {error.text()};
    }
}

void backUpStore(Connection& store, Progress& progress) {
    if (isOnServer(store)) return;
    const ProgressScope scope(progress, "Please Wait While System Copies the Store...", barLength);
    const QFileInfo file(store.path());
    const QString name = file.completeBaseName();
    const QDir folder(file.absoluteDir().filePath(backupFolder));
    if (!folder.mkpath(".")) fail(QString("The folder \"%1\" cannot be made.").arg(folder.path()));
    const QString copy =
        QString("%1-%2.%3").arg(name, Clock::now().toString("yyyyMMdd-HHmmss"), file.suffix());
    makeCopy(store.path(), folder.filePath(name + ".unfinished"), folder.filePath(copy), progress);
    flush(folder.path());
    removeOldCopies(folder, QString("%1-*.%2").arg(name, file.suffix()));
}
