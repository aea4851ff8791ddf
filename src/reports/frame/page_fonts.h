#pragma once
#include "reports/frame/report_output.h"

#include <QFont>
#include <QFontMetrics>

// A text as its control shows it.
struct FittedText {
    QString text;
    int percent = 100;  // of the breadth of its letters
    int width = 0;      // in twips, as it is drawn; wider than the control: it is clipped there
};

// The font of one style, and what is measured with it, in twips.
class StyleFont {
  public:
    StyleFont(const TextStyle& style, reportOutput::Rendering rendering);

    const QFont& font() const { return font_; }
    int width(const QString& text) const { return metrics_.horizontalAdvance(text); }
    // The text has room in its control on paper of full rendering.
    bool fits(const PageItem& item) const { return full_.horizontalAdvance(item.text) <= item.place.width(); }
    // A figure that is wider than its control is drawn in narrower letters, no narrower than those of five
    // points; where that does not help, number signs stand for it, never a part of it. What is whole in full
    // rendering is whole in every one.
    FittedText fitted(const PageItem& item) const;
    // Where a fitted text begins, as its style aligns it; one that is clipped begins at the left edge.
    int leftOf(const PageItem& item, const FittedText& fit) const;

  private:
    Qt::Alignment alignment_;
    int leastPercent_;   // of a figure's letters
    int usualPercent_;   // of any letters
    QFont font_;         // as it is drawn
    QFontMetrics full_;  // of full rendering
    QFontMetrics metrics_;
};

// The fonts of one set of pages, made once.
class PageFonts {
  public:
    explicit PageFonts(const ReportPages& pages,
                       reportOutput::Rendering rendering = reportOutput::Rendering::Full);
    const StyleFont& of(const PageItem& item) const { return fonts_[item.style]; }

  private:
    std::vector<StyleFont> fonts_;
};
