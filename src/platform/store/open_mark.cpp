#include "platform/store/open_mark.h"

#include <QDir>
#include <QFileInfo>
#include <QRandomGenerator>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace {
QString markPrefix(const QString& storePath) { return QFileInfo(storePath).fileName() + "-open-"; }

QString newMark(const QString& storePath) {
    const quint64 number = QRandomGenerator::system()->generate64();
    return QFileInfo(storePath).absolutePath() + u'/' + markPrefix(storePath) + QString::number(number, 36);
}

bool isLeft(const QString& mark) {
    const int file = open(QFile::encodeName(mark).constData(), O_RDWR | O_CLOEXEC);
    const bool left = file >= 0 && flock(file, LOCK_EX | LOCK_NB) == 0;
    if (file >= 0) close(file);
    return left;
}
}  // namespace

// Locked before it bears its name, so that no other connection finds it without its lock.
OpenMark::OpenMark(const QString& storePath) : path_(newMark(storePath)) {
    const QByteArray made =
        QFile::encodeName(QFileInfo(path_).absolutePath() + "/." + QFileInfo(path_).fileName());
    file_ = open(made.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (file_ < 0) return;
    flock(file_, LOCK_EX | LOCK_NB);
    rename(made.constData(), QFile::encodeName(path_).constData());
}

OpenMark::~OpenMark() {
    if (file_ < 0) return;
    QFile::remove(path_);
    close(file_);
}

QStringList OpenMark::leftBehind(const QString& storePath) {
    const QString prefix = markPrefix(storePath);
    const QDir folder(QFileInfo(storePath).absolutePath());
    QStringList left;
    for (const QString& name : folder.entryList(QDir::Files))
        if (name.startsWith(prefix) && isLeft(folder.filePath(name))) left += folder.filePath(name);
    return left;
}
