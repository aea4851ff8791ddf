#include "platform/ui/icons.h"

#include <QFile>

static void loadPictures() { Q_INIT_RESOURCE(icons); }

QIcon bundledIcon(const QString& name) {
    loadPictures();
    const QString path = ":/icons/" + name + ".svg";
    Q_ASSERT_X(QFile::exists(path), "bundledIcon", qPrintable(name));
    return QIcon(path);
}
