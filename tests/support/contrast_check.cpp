#include "support/contrast_check.h"

#include "platform/ui/readable_palette.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QGroupBox>
#include <QHash>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>

namespace check {

// Pictures and boxes stand before the text, which a push button has in its middle and all others at the left.
static QRect captionOf(const QAbstractButton* button) {
    if (button->text().isEmpty()) return {};
    const QRect inside = button->rect().adjusted(0, 3, -3, -3);
    const int left = qobject_cast<const QPushButton*>(button) ? inside.center().x() : inside.height();
    const int width = button->fontMetrics().size(Qt::TextShowMnemonic, button->text()).width();
    return inside & QRect(left, 0, width + inside.height(), button->height());
}

// Where the text of a widget stands, in its own coordinates; none: it shows no text.
static QRect textOf(const QWidget* widget) {
    const QRect place = widget->rect();
    if (auto* label = qobject_cast<const QLabel*>(widget))
        return label->text().trimmed().isEmpty() ? QRect() : place;
    if (auto* button = qobject_cast<const QAbstractButton*>(widget)) return captionOf(button);
    if (auto* line = qobject_cast<const QLineEdit*>(widget))
        return line->text().isEmpty() ? QRect() : place.adjusted(4, 4, -4, -4);
    if (auto* group = qobject_cast<const QGroupBox*>(widget))
        return group->title().isEmpty() ? QRect()
                                        : QRect(0, 0, group->width(), group->fontMetrics().height());
    return {};
}

static QList<QRect> textsOf(const QWidget* widget) {
    const auto* list = qobject_cast<const QAbstractItemView*>(widget);
    if (!list || qobject_cast<const QHeaderView*>(widget)) return {textOf(widget)};
    QList<QRect> rows;
    const QModelIndex current = list->currentIndex();
    if (!current.isValid()) return rows;
    for (const int row : {current.row(), current.row() + 1})
        if (const QModelIndex cell = current.sibling(row, 0); !cell.data().toString().isEmpty())
            rows += list->visualRect(cell).translated(list->viewport()->pos()).adjusted(1, 1, -1, -1);
    return rows;
}

// The colour that most of the picture has is the background.
static double strongestContrast(const QImage& picture) {
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) ++counts[picture.pixel(x, y)];
    auto most = counts.cbegin();
    for (auto color = counts.cbegin(); color != counts.cend(); ++color)
        if (std::pair(*color, color.key()) > std::pair(*most, most.key())) most = color;
    double strongest = 1;
    for (auto color = counts.cbegin(); color != counts.cend(); ++color)
        strongest = std::max(strongest, contrastOf(QColor(color.key()), QColor(most.key())));
    return strongest;
}

QStringList weakTexts(QWidget* screen) {
    QStringList faults;
    const QImage whole = screen->grab().toImage();
    const double scale = whole.devicePixelRatio();
    for (const QWidget* widget : screen->findChildren<QWidget*>()) {
        if (!widget->isVisible() || widget->window() != screen->window()) continue;
        for (const QRect& text : textsOf(widget)) {
            const QRect place = QRect(widget->mapTo(screen, text.topLeft()), text.size()) & screen->rect();
            if (place.isEmpty()) continue;
            const QRectF pixels(QPointF(place.topLeft()) * scale, QSizeF(place.size()) * scale);
            const double contrast = strongestContrast(whole.copy(pixels.toRect()));
            if (contrast < readableContrast)
                faults += QString("weak text %1 : 1 of %2 %3")
                              .arg(contrast, 0, 'f', 1)
                              .arg(widget->metaObject()->className(), widget->objectName());
        }
    }
    return faults;
}

}  // namespace check
