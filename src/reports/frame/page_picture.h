#pragma once
#include <QImage>
#include <QSize>

// The size, in twips, at which a picture prints in this room.
QSize printedSize(const QImage& picture, const QSize& room);

// The picture of a file, scaled to the 300 dots to the inch that paper resolves in a room of this size, in
// twips; a smaller one stays as it is. Null when the file holds none. It is read and scaled once, and the
// same picture is given until the file changes, so that an output that keeps pictures keeps one.
QImage printedPicture(const QString& file, const QSize& room);
