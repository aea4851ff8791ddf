#pragma once
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>

// The look of the program: the same on every desktop, and readable on a dark palette, too.
class ProgramStyle : public QProxyStyle {
    Q_OBJECT
  public:
    ProgramStyle();
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override;
    using QProxyStyle::polish;
    // The colours of the desktop, so that every text can be read.
    void polish(QPalette& palette) override;

  private:
    void drawTitle(const QStyleOptionTitleBar& title, QPainter* painter, const QWidget* widget) const;
    bool drawBox(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                 const QWidget* widget) const;
};
