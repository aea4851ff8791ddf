#include "platform/ui/program_style.h"

#include <QProxyStyle>
#include <QStyleOption>
#include <QStyleOptionButton>

ProgramStyle::ProgramStyle() : QProxyStyle("Fusion") {}

static bool isDark(const QPalette& palette) {
    return palette.color(QPalette::Text).lightness() > palette.color(QPalette::Window).lightness();
}

// Boxes are framed in a darker shade of the window; on a dark one nobody would see the frame.
void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
    const bool isBox = element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton;
    const auto* box = isBox ? qstyleoption_cast<const QStyleOptionButton*>(option) : nullptr;
    if (!box || !isDark(box->palette)) return QProxyStyle::drawPrimitive(element, option, painter, widget);
    QStyleOptionButton framed = *box;
    framed.palette.setColor(QPalette::Window, box->palette.color(QPalette::Text));
    QProxyStyle::drawPrimitive(element, &framed, painter, widget);
}
