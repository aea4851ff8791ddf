#include "bench/disk_recorder.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QMutex>

#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>
#include <cstdarg>

namespace {
constexpr int folderItself = -2;

struct Recorder {
    QMutex mutex;
    bool on = false;
    QString folder;
    QHash<QString, int> names;
    QHash<int, int> open;  // descriptor, file
    int fileCount = 0;
    disk::Recording recording;
};

Recorder& recorder() {
    static Recorder one;
    return one;
}

template <class Call>
Call systemCall(const char* name) {
    return reinterpret_cast<Call>(dlsym(RTLD_NEXT, name));
}

// The name within the recorded folder; empty for any other path.
QString nameWithin(const char* path) {
    const QString whole = QFile::decodeName(path);
    return whole.startsWith(recorder().folder + u'/') ? whole.mid(recorder().folder.size() + 1) : QString();
}

void add(disk::Event event) { recorder().recording.events.push_back(std::move(event)); }

void opened(int descriptor, const char* path, bool existed) {
    Recorder& r = recorder();
    const QMutexLocker lock(&r.mutex);
    r.open.remove(descriptor);
    if (!r.on) return;
    if (QFile::decodeName(path) == r.folder) r.open[descriptor] = folderItself;
    const QString name = nameWithin(path);
    if (name.isEmpty()) return;
    if (!existed) {
        r.names[name] = r.fileCount++;
        add({disk::Deed::Create, r.names[name], name, 0, {}});
    }
    r.open[descriptor] = r.names.value(name, -1);
}

// The file behind a descriptor; -1 for one that is not recorded.
int fileOf(int descriptor) { return recorder().on ? recorder().open.value(descriptor, -1) : -1; }

void wrote(int descriptor, const void* bytes, qint64 count, qint64 offset) {
    const QMutexLocker lock(&recorder().mutex);
    if (const int file = fileOf(descriptor); file >= 0 && count > 0)
        add({disk::Deed::Write, file, {}, offset, QByteArray(static_cast<const char*>(bytes), count)});
}
}  // namespace

extern "C" {
int open64(const char* path, int flags, ...) {
    static const auto real = systemCall<int (*)(const char*, int, ...)>("open64");
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    const bool existed = access(path, F_OK) == 0;
    const int descriptor = real(path, flags, mode);
    if (descriptor >= 0) opened(descriptor, path, existed);
    return descriptor;
}

int close(int descriptor) {
    static const auto real = systemCall<int (*)(int)>("close");
    {
        const QMutexLocker lock(&recorder().mutex);
        recorder().open.remove(descriptor);
    }
    return real(descriptor);
}

ssize_t pwrite64(int descriptor, const void* bytes, size_t count, off64_t offset) {
    static const auto real = systemCall<ssize_t (*)(int, const void*, size_t, off64_t)>("pwrite64");
    const ssize_t written = real(descriptor, bytes, count, offset);
    wrote(descriptor, bytes, written, offset);
    return written;
}

int ftruncate64(int descriptor, off64_t length) noexcept {
    static const auto real = systemCall<int (*)(int, off64_t)>("ftruncate64");
    const int result = real(descriptor, length);
    const QMutexLocker lock(&recorder().mutex);
    if (const int file = fileOf(descriptor); file >= 0 && result == 0)
        add({disk::Deed::Cut, file, {}, length, {}});
    return result;
}

int fdatasync(int descriptor) {
    static const auto real = systemCall<int (*)(int)>("fdatasync");
    const int result = real(descriptor);
    const QMutexLocker lock(&recorder().mutex);
    const int file = fileOf(descriptor);
    if (result == 0 && file != -1)
        add({file == folderItself ? disk::Deed::FlushFolder : disk::Deed::FlushFile, file, {}, 0, {}});
    return result;
}

int unlink(const char* path) noexcept {
    static const auto real = systemCall<int (*)(const char*)>("unlink");
    const int result = real(path);
    Recorder& r = recorder();
    const QMutexLocker lock(&r.mutex);
    if (!r.on || result != 0) return result;
    const QString name = nameWithin(path);
    if (r.names.contains(name)) add({disk::Deed::Remove, r.names.take(name), name, 0, {}});
    return result;
}
}

namespace disk {

static std::vector<FirstFile> filesIn(const QString& folder) {
    std::vector<FirstFile> files;
    for (const QString& name : QDir(folder).entryList(QDir::Files)) {
        QFile file(QDir(folder).filePath(name));
        if (file.open(QFile::ReadOnly)) files.push_back({name, file.readAll()});
    }
    return files;
}

void startRecording(const QString& folder) {
    Recorder& r = recorder();
    std::vector<FirstFile> files = filesIn(folder);
    const QMutexLocker lock(&r.mutex);
    r.folder = folder;
    r.names.clear();
    r.open.clear();
    for (size_t at = 0; at < files.size(); ++at) r.names[files[at].name] = static_cast<int>(at);
    r.fileCount = static_cast<int>(files.size());
    r.recording = {std::move(files), {}};
    r.on = true;
}

void acknowledge(int save) {
    const QMutexLocker lock(&recorder().mutex);
    add({Deed::Acknowledge, -1, {}, save, {}});
}

Recording stopRecording() {
    const QMutexLocker lock(&recorder().mutex);
    recorder().on = false;
    return std::exchange(recorder().recording, {});
}

}  // namespace disk
