#include "support/screen_checks.h"

#include "support/contrast_check.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>

namespace check {

static QString named(const QWidget* widget) {
    return QString("%1 %2").arg(widget->metaObject()->className(), widget->objectName());
}

static bool inScrollArea(const QWidget* widget, const QWidget* screen) {
    for (const QWidget* up = widget->parentWidget(); up && up != screen; up = up->parentWidget())
        if (qobject_cast<const QAbstractScrollArea*>(up)) return true;
    return false;
}

static bool labelFits(const QLabel* label) {
    if (label->text().isEmpty()) return true;
    if (label->wordWrap()) return label->heightForWidth(label->width()) <= label->height();
    const QSize needed = label->minimumSizeHint();
    return needed.width() <= label->width() && needed.height() <= label->height();
}

static bool buttonFits(const QAbstractButton* button) {
    const QString text = button->text();
    const int needed = button->fontMetrics().size(Qt::TextShowMnemonic, text).width();
    return needed <= button->width() && button->fontMetrics().height() <= button->height();
}

static bool groupFits(const QGroupBox* group) {
    return group->fontMetrics().size(Qt::TextShowMnemonic, group->title()).width() <= group->width();
}

// A one-line field needs the height of its line.
static bool lineFits(const QWidget* field) { return field->fontMetrics().height() <= field->height(); }

static bool fits(const QWidget* widget) {
    if (auto* label = qobject_cast<const QLabel*>(widget)) return labelFits(label);
    if (auto* button = qobject_cast<const QAbstractButton*>(widget)) return buttonFits(button);
    if (auto* group = qobject_cast<const QGroupBox*>(widget)) return groupFits(group);
    if (qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QComboBox*>(widget))
        return lineFits(widget);
    return true;
}

static QStringList clippedHeadings(const QHeaderView* header) {
    QStringList faults;
    if (!header->model() || header->orientation() != Qt::Horizontal) return faults;
    for (int section = 0; section < header->count(); ++section)
        if (!header->isSectionHidden(section) &&
            header->sectionSizeHint(section) > header->sectionSize(section))
            faults += "clipped heading " + header->model()->headerData(section, Qt::Horizontal).toString() +
                      " of " + named(header->parentWidget());
    return faults;
}

static bool insideScreen(const QWidget* widget, const QWidget* screen) {
    const QRect place(widget->mapTo(screen, QPoint(0, 0)), widget->size());
    return screen->rect().contains(place);
}

QStringList clippedTexts(QWidget* screen) {
    QStringList faults;
    for (const QWidget* widget : screen->findChildren<QWidget*>()) {
        if (!widget->isVisible() || widget->window() != screen->window()) continue;
        if (auto* header = qobject_cast<const QHeaderView*>(widget)) faults += clippedHeadings(header);
        if (inScrollArea(widget, screen)) continue;
        if (!fits(widget)) faults += "clipped " + named(widget);
        if (!insideScreen(widget, screen)) faults += "outside the screen: " + named(widget);
    }
    return faults;
}

static bool takesFocus(const QWidget* widget, const QWidget* screen) {
    return widget->focusPolicy() != Qt::NoFocus && !widget->focusProxy() && widget->isVisibleTo(screen) &&
           widget->window() == screen->window();
}

QStringList unnamedControls(QWidget* screen) {
    QStringList faults;
    for (const QWidget* widget : screen->findChildren<QWidget*>()) {
        if (!takesFocus(widget, screen)) continue;
        if (widget->objectName().isEmpty()) faults += "no object name: " + named(widget);
        if (widget->accessibleName().isEmpty()) faults += "no accessible name: " + named(widget);
    }
    return faults;
}

static QList<QWidget*> tabOrder(QWidget* screen) {
    QList<QWidget*> order;
    for (QWidget* next = screen->nextInFocusChain(); next != screen; next = next->nextInFocusChain())
        if (takesFocus(next, screen) && (next->focusPolicy() & Qt::TabFocus) && next->isEnabled() &&
            screen->isAncestorOf(next))
            order += next;
    return order;
}

static bool goesBack(const QRect& from, const QRect& to) {
    const bool sameRow = to.center().y() >= from.top() && to.center().y() <= from.bottom();
    if (sameRow) return to.left() < from.left();
    return to.bottom() < from.center().y() && to.left() < from.right();
}

QStringList tabOrderFaults(QWidget* screen) {
    QStringList faults;
    const QList<QWidget*> order = tabOrder(screen);
    const auto place = [screen](QWidget* widget) {
        return QRect(widget->mapTo(screen, QPoint(0, 0)), widget->size());
    };
    for (qsizetype i = 1; i < order.size(); ++i)
        if (goesBack(place(order[i - 1]), place(order[i])))
            faults += "tab order goes back from " + named(order[i - 1]) + " to " + named(order[i]);
    return faults;
}

QStringList faults(QWidget* screen) {
    return clippedTexts(screen) + unnamedControls(screen) + tabOrderFaults(screen) + weakTexts(screen);
}

}  // namespace check
