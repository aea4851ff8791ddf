#pragma once
#include <QProxyStyle>
#include <QStyleOption>

// The look of the program: the same on every desktop, and readable on a dark palette, too.
class ProgramStyle : public QProxyStyle {
    Q_OBJECT
  public:
    ProgramStyle();
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};
