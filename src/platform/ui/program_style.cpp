#include "platform/ui/program_style.h"

#include "platform/ui/list_look.h"
#include "platform/ui/readable_palette.h"

#include <QGuiApplication>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QStyleOptionProgressBar>
#include <QTableView>
#include <QTreeView>

ProgramStyle::ProgramStyle() : QProxyStyle("Fusion") {}

static bool isDark(const QPalette& palette) {
    return palette.color(QPalette::Text).lightness() > palette.color(QPalette::Window).lightness();
}

static bool isList(const QWidget* widget) {
    return qobject_cast<const QTreeView*>(widget) || qobject_cast<const QTableView*>(widget);
}

// What nobody can type into.
static bool isOnlyShown(const QStyleOption* option) {
    return option->state.testFlag(QStyle::State_ReadOnly) || !option->state.testFlag(QStyle::State_Enabled);
}

// Flat: no frame, and a fine line where the text stands. A colour of its own is painted, that of fields is
// not.
static void drawShown(const QStyleOption* option, QPainter* painter) {
    const QColor own = option->palette.color(QPalette::Base);
    const QPalette colours = QGuiApplication::palette();
    const bool isUsual = own == colours.color(QPalette::Active, QPalette::Base) ||
                         own == colours.color(QPalette::Active, QPalette::Window);
    if (!isUsual) painter->fillRect(option->rect, own);
    QColor line = option->palette.color(QPalette::WindowText);
    line.setAlphaF(0.2F);
    painter->fillRect(QRect(option->rect.bottomLeft(), QSize(option->rect.width(), 1)), line);
}

// The line that stands within another control is drawn by that.
static bool isShownField(const QStyleOption* option) {
    const auto* field = qstyleoption_cast<const QStyleOptionFrame*>(option);
    return field && field->lineWidth > 0 && isOnlyShown(option);
}

// Boxes are framed in a darker shade of the window; on a dark one nobody would see the frame.
bool ProgramStyle::drawBox(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                           const QWidget* widget) const {
    const bool isBox = element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton;
    const auto* box = isBox ? qstyleoption_cast<const QStyleOptionButton*>(option) : nullptr;
    if (!box || !isDark(box->palette)) return false;
    QStyleOptionButton framed = *box;
    framed.palette.setColor(QPalette::Window, box->palette.color(QPalette::Text));
    QProxyStyle::drawPrimitive(element, &framed, painter, widget);
    return true;
}

void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
    if (drawBox(element, option, painter, widget)) return;
    if (element == PE_PanelLineEdit && isShownField(option)) return drawShown(option, painter);
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    // Which list has the focus is seen while it is empty, too.
    if (element != PE_Frame || !isList(widget) || !widget->hasFocus()) return;
    painter->setPen(option->palette.color(QPalette::Active, QPalette::Highlight));
    painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
}

// The room before a text in a cell, less the one pixel that is added to it everywhere.
int ProgramStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    if (metric == PM_FocusFrameHMargin && isList(widget)) return list_look::padding(widget) - 1;
    return QProxyStyle::pixelMetric(metric, option, widget);
}

static bool isFocused(const QStyleOption* option) { return option->state.testFlag(QStyle::State_HasFocus); }

// Where the focus stands is seen before the first Tab, too.
template <class Option>
static Option withFocusSeen(Option option) {
    option.state |= QStyle::State_KeyboardFocusChange;
    return option;
}

// The shadow of the title has the colour of texts: on a dark palette the title would stand there twice.
void ProgramStyle::drawTitle(const QStyleOptionTitleBar& title, QPainter* painter,
                             const QWidget* widget) const {
    QStyleOptionTitleBar shadowed = title;
    shadowed.palette.setColor(QPalette::Text, Qt::black);
    QProxyStyle::drawComplexControl(CC_TitleBar, &shadowed, painter, widget);
}

// A list to choose from that is closed to a person has no arrow.
void ProgramStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
    const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    if (combo && combo->editable && isOnlyShown(option)) return drawShown(option, painter);
    const auto* title = qstyleoption_cast<const QStyleOptionTitleBar*>(option);
    if (title && title->state.testFlag(State_Active)) return drawTitle(*title, painter, widget);
    if (combo && isFocused(option)) {
        const QStyleOptionComboBox shown = withFocusSeen(*combo);
        return QProxyStyle::drawComplexControl(control, &shown, painter, widget);
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

int ProgramStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* returned) const {
    // Yes and No say what they are without pictures.
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    return QProxyStyle::styleHint(hint, option, widget, returned);
}

void ProgramStyle::polish(QPalette& palette) {
    QProxyStyle::polish(palette);
    palette = readablePalette(palette);
}

static void drawRounded(QPainter* painter, const QRectF& rect, const QColor& color) {
    constexpr qreal radius = 3;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(color);
    painter->drawRoundedRect(rect, radius, radius);
    painter->restore();
}

// A trough that fills up. The one of Fusion looks like a field to type into.
void ProgramStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
    const auto* bar = qstyleoption_cast<const QStyleOptionProgressBar*>(option);
    if (bar && element == CE_ProgressBarGroove) {
        const bool dark = isDark(bar->palette);
        const QColor window = bar->palette.color(QPalette::Window);
        drawRounded(painter, bar->rect, dark ? window.lighter(150) : window.darker(115));
    } else if (bar && element == CE_ProgressBarContents) {
        const double range = std::max(1.0, static_cast<double>(bar->maximum) - bar->minimum);
        QRectF done = bar->rect;
        done.setWidth(done.width() * std::max(0, bar->progress - bar->minimum) / range);
        drawRounded(painter, done, bar->palette.color(QPalette::Active, QPalette::Highlight));
    } else if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
               button && isFocused(option)) {
        const QStyleOptionButton shown = withFocusSeen(*button);
        QProxyStyle::drawControl(element, &shown, painter, widget);
    } else {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}
