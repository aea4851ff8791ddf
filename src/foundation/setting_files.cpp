#include "foundation/setting_files.h"

#include "foundation/session.h"
#include "platform/parsing.h"

#include <QFile>

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
