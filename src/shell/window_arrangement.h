#pragma once
#include <QList>
#include <QRect>

// Places for count windows side by side in a room, all of it used: one under the other when tiled
// horizontally, one beside the other when tiled vertically, and in rows and columns from four on.
QList<QRect> tiled(const QRect& room, int count, Qt::Orientation orientation);

// Places of this size along the bottom of a room, from left to right, then upwards.
QList<QRect> alongBottom(const QRect& room, int count, const QSize& size);
