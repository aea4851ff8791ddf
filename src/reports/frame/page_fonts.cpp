#include "reports/frame/page_fonts.h"

#include "reports/frame/report_fonts.h"

#include <algorithm>

namespace {
using reportOutput::Rendering;

// Letters of a fixed pitch are broad: they are set in the condensed pitch of matrix printers.
constexpr int condensed = 87;

QFont drawnFont(const TextStyle& style, Rendering rendering) {
    QFont font = fontInTwips(style);
    if (rendering == Rendering::DotMatrix) font.setFamily(fixedPitchFamily);
    return font;
}

int percentThatFits(int room, int width) { return width > 0 ? std::max(1, room * 100 / width) : 100; }
}  // namespace

StyleFont::StyleFont(const TextStyle& style, Rendering rendering)
    : alignment_(style.alignment),
      leastPercent_(leastPercent(style)),
      usualPercent_(rendering == Rendering::DotMatrix ? condensed : 100),
      font_(drawnFont(style, rendering)),
      full_(fontInTwips(style)),
      metrics_(font_) {}

FittedText StyleFont::fitted(const PageItem& item) const {
    const int room = item.place.width();
    const int needed = full_.horizontalAdvance(item.text);
    const bool isWhole = needed <= room || (item.isFigure && percentThatFits(room, needed) >= leastPercent_);
    FittedText fit{item.text, usualPercent_, needed};
    if (item.isFigure && !isWhole) fit.text = QString(std::max(1, room / full_.horizontalAdvance('#')), '#');
    if (!isWhole || usualPercent_ < 100) fit.width = width(fit.text);
    if (isWhole || item.isFigure) fit.percent = std::min(fit.percent, percentThatFits(room, fit.width));
    fit.width = fit.width * fit.percent / 100;
    return fit;
}

int StyleFont::leftOf(const PageItem& item, const FittedText& fit) const {
    const int rest = std::max(0, item.place.width() - fit.width);
    const int before = alignment_ & Qt::AlignRight ? rest : alignment_ & Qt::AlignHCenter ? rest / 2 : 0;
    return item.place.left() + before;
}

PageFonts::PageFonts(const ReportPages& pages, Rendering rendering) {
    for (const TextStyle& style : pages.styles) fonts_.emplace_back(style, rendering);
}
