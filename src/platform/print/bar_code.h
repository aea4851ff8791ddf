#pragma once
#include <QRect>
#include <QString>

class QPainter;

// Bar codes in Code 39. Capital letters stand for small ones, as the store's texts compare. The narrowest bar
// is two dots of a printer with 300 to the inch, 0.17 mm; a wide one is two to three times as broad.
namespace barCode {

// What a text lacks to be a bar code in a place of this width, in twips.
enum class Lack { Nothing, Characters, Room };
Lack lackOf(const QString& text, int width);

// Paints the bars in the middle of the place; the painter's unit is a twip. Every bar is a whole number of
// the device's dots; a screen and a file, which have none of their own, show it for 300 to the inch. False:
// the device is too coarse for it, and nothing is painted.
bool paint(QPainter& painter, const QRect& place, const QString& text);

}  // namespace barCode
