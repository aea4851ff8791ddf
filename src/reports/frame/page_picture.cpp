#include "reports/frame/page_picture.h"

#include <QCache>
#include <QDateTime>
#include <QFileInfo>

namespace {
constexpr int dotsToTheInch = 300;
constexpr int twipsToTheInch = 1440;
constexpr int keptPictures = 8;

QImage scaledOnce(const QString& file, const QSize& room) {
    const QImage picture(file);
    const QSize printed = printedSize(picture, room) * dotsToTheInch / twipsToTheInch;
    if (picture.isNull() || printed.width() >= picture.width()) return picture;
    return picture.scaled(printed.expandedTo({1, 1}), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QString keyOf(const QString& file, const QSize& room) {
    const qint64 changed = QFileInfo(file).lastModified().toMSecsSinceEpoch();
    return QString("%1 %2 %3 %4").arg(changed).arg(room.width()).arg(room.height()).arg(file);
}
}  // namespace

QSize printedSize(const QImage& picture, const QSize& room) {
    return picture.size().scaled(room, Qt::KeepAspectRatio);
}

QImage printedPicture(const QString& file, const QSize& room) {
    static QCache<QString, QImage> pictures(keptPictures);
    const QString key = keyOf(file, room);
    if (const QImage* kept = pictures.object(key)) return *kept;
    const QImage picture = scaledOnce(file, room);
    pictures.insert(key, new QImage(picture));
    return picture;
}
