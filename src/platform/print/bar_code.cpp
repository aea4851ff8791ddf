#include "platform/print/bar_code.h"

#include <QByteArray>
#include <QList>
#include <QPainter>

#include <zint.h>
#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>

namespace {
constexpr int twipsPerInch = 1440;
constexpr int narrowestPerInch = 150;
// Its dots are whole ones of finer printers, too: of 600 and of 1,200.
constexpr int commonDots = 300;
constexpr int fewestDots = 200;  // of a printer; what shows fewer to the inch is a screen

// Bars and spaces by turns, beginning with a bar, with the start and the stop character: true is a wide one.
// Empty: the text has a character that Code 39 has not, or none at all.
QList<bool> elementsOf(const QString& text) {
    const std::unique_ptr<zint_symbol, void (*)(zint_symbol*)> symbol(ZBarcode_Create(), ZBarcode_Delete);
    symbol->symbology = BARCODE_CODE39;
    const QByteArray bytes = text.toUtf8();
    const auto* characters = reinterpret_cast<const unsigned char*>(bytes.constData());
    if (bytes.isEmpty() || ZBarcode_Encode(symbol.get(), characters, static_cast<int>(bytes.size())) != 0)
        return {};
    QList<bool> elements;
    const auto isBar = [&](int module) { return (symbol->encoded_data[0][module / 8] >> (module % 8)) & 1; };
    for (int module = 0; module < symbol->width; ++module) {
        if (module > 0 && isBar(module) == isBar(module - 1))
            elements.last() = true;
        else
            elements += false;
    }
    return elements;
}

struct Widths {
    int narrow, wide;  // in dots
};

int widthOf(const QList<bool>& elements, const Widths& widths) {
    const int wide = static_cast<int>(elements.count(true));
    return wide * widths.wide + (static_cast<int>(elements.size()) - wide) * widths.narrow;
}

// The broadest bars that a place of these dots has room for.
std::optional<Widths> widthsWithin(const QList<bool>& elements, int room, int dotsPerInch) {
    const int unit = widthOf(elements, {1, 2});
    const int narrow = unit > 0 ? room / unit : 0;
    if (narrow * narrowestPerInch < dotsPerInch) return {};
    const int wide = static_cast<int>(elements.count(true));
    const int left = room - (static_cast<int>(elements.size()) - wide) * narrow;
    return Widths{narrow, std::min(3 * narrow, left / wide)};
}

int dotsWithin(int twips, int dotsPerInch) { return twips * dotsPerInch / twipsPerInch; }

int dotsOf(const QPainter& painter) {
    const int kind = painter.device()->devType();
    const int dots = qRound(painter.combinedTransform().m11() * twipsPerInch);
    const bool hasDots = (kind == QInternal::Printer || kind == QInternal::Image) && dots >= fewestDots;
    return hasDots && dots % commonDots != 0 ? dots : commonDots;
}
}  // namespace

namespace barCode {

Lack lackOf(const QString& text, int width) {
    const QList<bool> elements = elementsOf(text);
    if (elements.isEmpty()) return Lack::Characters;
    return widthsWithin(elements, dotsWithin(width, commonDots), commonDots) ? Lack::Nothing : Lack::Room;
}

bool paint(QPainter& painter, const QRect& place, const QString& text) {
    const int dots = dotsOf(painter);
    const double twipsPerDot = double(twipsPerInch) / dots;
    const QList<bool> elements = elementsOf(text);
    const int room = dotsWithin(place.width(), dots);
    const auto widths = widthsWithin(elements, room, dots);
    if (!widths) return false;
    int left =
        static_cast<int>(std::ceil(place.left() / twipsPerDot)) + (room - widthOf(elements, *widths)) / 2;
    for (qsizetype i = 0; i < elements.size(); ++i) {
        const int width = elements[i] ? widths->wide : widths->narrow;
        if (i % 2 == 0)
            painter.fillRect(QRectF(left * twipsPerDot, place.top(), width * twipsPerDot, place.height()),
                             Qt::black);
        left += width;
    }
    return true;
}

}  // namespace barCode
