#include "reports/frame/report_output.h"

#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <filesystem>

namespace {
// What a clerk can do about a refusal of the system.
struct Advice {
    int error;
    const char* words;
};
constexpr const char* notYours = "You are not allowed to save in that folder. Choose another folder.";
constexpr const char* noFolder = "There is no such folder. Choose another folder.";
constexpr const char* diskFull = "The disk is full. Make room on it, or choose another disk.";
constexpr Advice advices[] = {
    {EACCES, notYours},
    {EPERM, notYours},
    {EROFS, "That folder can only be read. Choose another folder."},
    {ENOENT, noFolder},
    {ENOTDIR, noFolder},
    {ENAMETOOLONG, "The name is too long. Choose a shorter name."},
    {ENOSPC, diskFull},
    {EDQUOT, diskFull},
    {EFBIG, "The file is larger than that disk allows. Choose another disk, or save fewer pages."},
};

QString adviceFor(const QString& systemText) {
    for (const Advice& advice : advices)
        if (systemText == qt_error_string(advice.error)) return advice.words;
    return "The system says: " + systemText;
}

// What is wrong with the name before anything is written; empty: nothing.
QString faultOf(const QString& path) {
    std::error_code unknown;
    switch (std::filesystem::status(QFile::encodeName(path).constData(), unknown).type()) {
        case std::filesystem::file_type::directory:
            return "That is the name of a folder. Choose another name.";
        case std::filesystem::file_type::regular:
            return QFileInfo(path).isWritable() ? QString() : "That file is protected. Choose another name.";
        case std::filesystem::file_type::none:
        case std::filesystem::file_type::not_found:
        case std::filesystem::file_type::unknown:
            return {};
        default:
            return "That is the name of a device. Choose another name.";
    }
}

// A full disk takes a part, and refuses the rest.
bool writeAll(QSaveFile& file, const QByteArray& content) {
    qint64 written = 0;
    while (written < content.size()) {
        const qint64 taken = file.write(content.constData() + written, content.size() - written);
        if (taken <= 0) return false;
        written += taken;
    }
    return true;
}
}  // namespace

QString reportOutput::writeFile(const QString& path, const QByteArray& content) {
    if (const QString fault = faultOf(path); !fault.isEmpty()) return fault;
    const bool isOver = QFileInfo(path).isFile();
    QSaveFile file(path);
    // Without a buffer, or the end of the content would be written where no failure is told any more.
    const bool isWritten =
        file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && writeAll(file, content) && file.commit();
    if (isWritten) return {};
    return adviceFor(file.errorString()) + (isOver ? " The file of that name is as it was." : "");
}
