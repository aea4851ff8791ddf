#include "shell/window_arrangement.h"

#include <cmath>

namespace {

// The strip of this index when a length is cut into equal parts that leave nothing over.
std::pair<int, int> part(int start, int length, int parts, int index) {
    const int from = start + length * index / parts;
    return {from, start + length * (index + 1) / parts - from};
}

QRect cell(const QRect& room, int columns, int column, int rows, int row) {
    const auto [left, width] = part(room.left(), room.width(), columns, column);
    const auto [top, height] = part(room.top(), room.height(), rows, row);
    return {left, top, width, height};
}

QRect turned(const QRect& rect) { return {rect.y(), rect.x(), rect.height(), rect.width()}; }

// Columns of windows one under the other; the last columns take the windows that are left over.
QList<QRect> inColumns(const QRect& room, int count) {
    const int columns = static_cast<int>(std::sqrt(count));
    QList<QRect> places;
    for (int column = 0; column < columns; ++column) {
        const int rows = count / columns + (columns - column <= count % columns ? 1 : 0);
        for (int row = 0; row < rows; ++row) places << cell(room, columns, column, rows, row);
    }
    return places;
}

}  // namespace

QList<QRect> tiled(const QRect& room, int count, Qt::Orientation orientation) {
    if (orientation == Qt::Horizontal) return inColumns(room, count);
    QList<QRect> places = inColumns(turned(room), count);
    for (QRect& place : places) place = turned(place);
    return places;
}

QList<QRect> alongBottom(const QRect& room, int count, const QSize& size) {
    const int inRow = std::max(1, room.width() / std::max(1, size.width()));
    QList<QRect> places;
    for (int i = 0; i < count; ++i)
        places << QRect(QPoint(room.left() + i % inRow * size.width(),
                               room.bottom() + 1 - (i / inRow + 1) * size.height()),
                        size);
    return places;
}
