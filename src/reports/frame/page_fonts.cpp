#include "reports/frame/page_fonts.h"

#include "reports/frame/report_fonts.h"

PageFonts::PageFonts(const ReportPages& pages, reportOutput::Rendering rendering) {
    for (const TextStyle& style : pages.styles) {
        QFont font = fontInTwips(style);
        if (rendering == reportOutput::Rendering::DotMatrix) font.setFamily("DejaVu Sans Mono");
        fonts_.push_back(font);
        metrics_.emplace_back(font);
    }
}
