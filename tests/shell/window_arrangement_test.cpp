#include "shell/window_arrangement.h"

#include <QRegion>

#include <gtest/gtest.h>

namespace {

TEST(WindowArrangement, TilesFillTheRoomAndNeverOverlap) {
    const QRect room(0, 0, 1021, 653);
    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical})
        for (int count = 1; count <= 17; ++count) {
            const QList<QRect> places = tiled(room, count, orientation);
            ASSERT_EQ(places.size(), count);
            QRegion covered;
            for (const QRect& place : places) {
                EXPECT_FALSE(covered.intersects(place)) << count;
                covered += place;
            }
            EXPECT_EQ(covered, QRegion(room)) << count;
        }
}

TEST(WindowArrangement, IconsLieAlongTheBottomAndThenUpwards) {
    const QList<QRect> places = alongBottom(QRect(0, 0, 500, 400), 3, QSize(200, 30));
    EXPECT_EQ(places, (QList<QRect>{{0, 370, 200, 30}, {200, 370, 200, 30}, {0, 340, 200, 30}}));
}

}  // namespace
