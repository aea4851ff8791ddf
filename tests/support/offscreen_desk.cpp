#include "support/offscreen_desk.h"

#include <QFile>
#include <QMessageLogContext>
#include <QTemporaryDir>
#include <cstdio>

static QByteArray deskDescription() {
    bool scaled = false;
    const double asked = qEnvironmentVariable("QT_SCALE_FACTOR").toDouble(&scaled);
    const double factor = scaled && asked > 0 ? asked : 1;
    return QString(
               "{\"screens\": [{\"name\": \"desk\", \"x\": 0, \"y\": 0, \"width\": %1, \"height\": %2, "
               "\"logicalDpi\": 96, \"dpr\": 1}]}")
        .arg(qRound(1024 * factor))
        .arg(qRound(768 * factor))
        .toUtf8();
}

// What such a desk cannot do is nothing that anybody has to know.
static void passOnMessage(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (text.startsWith("This plugin does not support") || text.contains("XDG_RUNTIME_DIR")) return;
    std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, text)));
}

void useOffscreenDesk() {
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    if (!platform.isEmpty() && platform != "offscreen") return;
    qInstallMessageHandler(passOnMessage);
    static const QTemporaryDir folder;
    QFile description(folder.filePath("desk.json"));
    if (description.open(QIODevice::WriteOnly) && description.write(deskDescription()) > 0)
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + description.fileName().toUtf8());
}
