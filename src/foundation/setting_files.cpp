#include "foundation/setting_files.h"

#include "foundation/session.h"
#include "platform/parsing.h"

#include <QFile>
#include <QSaveFile>

// A thousand characters count, of four bytes at most. A file may be of any size.
static constexpr qint64 longestLine = 4 * 1000 + 1;

std::optional<QString> SettingLine(const char* name) {
    QFile file(programFolder().filePath(name));
    if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
    QByteArray line = file.readLine(longestLine);
    if (line.isEmpty()) return std::nullopt;
    while (line.endsWith('\n') || line.endsWith('\r')) line.chop(1);
    return QString::fromUtf8(line);
}

static QString readSetting(const char* name, QString& value) {
    if (const auto line = SettingLine(name)) value = trim(line->left(10));
    return value;
}

QString ReadPrinterIni() { return readSetting("Printer.ini", session().ReportPrinterKind); }

QString ReadCheckPrinterIni() { return readSetting("CheckPrinter.ini", session().CheckPrinterKind); }

QString ReadReceiptPrinterIni() { return readSetting("ReceiptPrinter.ini", session().ReceiptPrinterKind); }

QString ReadReceiptIni() { return readSetting("Receipt.ini", session().ReceiptFormat); }

void ReadCheckIni() {
    const QString format = trim(SettingLine("Check.ini").value_or(QString()).left(1000)).toUpper();
    session().CheckBookFormat = format.isEmpty() ? QString("P") : format;
}

static QString writeSetting(const char* name, QString& value, const QString& written) {
    value = written;
    QSaveFile file(programFolder().filePath(name));
    const QByteArray line = written.toUtf8() + '\n';
    // Without a buffer, so that a full disk refuses the line before it takes the place of the old one.
    const bool isWritten = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
                           file.write(line) == line.size() && file.commit();
    return isWritten ? QString() : QString("%1 could not be saved. %2").arg(name, file.errorString());
}

QString WritePrinterIni(const QString& kind) {
    return writeSetting("Printer.ini", session().ReportPrinterKind, kind);
}

QString WriteCheckPrinterIni(const QString& kind) {
    return writeSetting("CheckPrinter.ini", session().CheckPrinterKind, kind);
}

QString WriteCheckIni(const QString& format) {
    return writeSetting("Check.ini", session().CheckBookFormat, format);
}
