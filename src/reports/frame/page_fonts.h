#pragma once
#include "reports/frame/report_output.h"

#include <QFont>
#include <QFontMetrics>

// The fonts of one set of pages and what is measured with them, made once.
class PageFonts {
  public:
    explicit PageFonts(const ReportPages& pages,
                       reportOutput::Rendering rendering = reportOutput::Rendering::Full);

    const QFont& font(const PageItem& item) const { return fonts_[item.style]; }
    // The width of a text in the style of an item, in twips.
    int width(const PageItem& item, const QString& text) const {
        return metrics_[item.style].horizontalAdvance(text);
    }
    bool fits(const PageItem& item) const { return width(item, item.text) <= item.place.width(); }

  private:
    std::vector<QFont> fonts_;
    std::vector<QFontMetrics> metrics_;
};
