#include "reports/frame/report_strip.h"

#include "reports/frame/report_walk.h"

namespace {
class Strip : public BandPaper {
  public:
    void putLine(std::vector<FormattedSection> headings, FormattedSection line) override {
        const int top = laid_.height;
        for (FormattedSection& heading : headings) append(std::move(heading));
        append(std::move(line));
        if (!headings.empty()) laid_.wholes.push_back({top, laid_.height});
        laid_.lastRow = top;
    }
    // A total is not parted from the last line before it.
    void putFooter(FormattedSection footer) override {
        append(std::move(footer));
        laid_.wholes.push_back({laid_.lastRow, laid_.height});
    }

    void append(FormattedSection band) {
        for (PageItem& item : band.items) {
            item.place.translate(0, laid_.height);
            laid_.items.push_back(std::move(item));
        }
        for (const Span& whole : band.wholes)
            laid_.wholes.push_back({whole.top + laid_.height, whole.bottom + laid_.height});
        laid_.height += band.height;
    }

    FormattedSection take() { return std::move(laid_); }

  private:
    FormattedSection laid_;
};
}  // namespace

FormattedSection stripOf(ReportJobParts& report, ReportPages& styles) {
    ReportWalk walk(report.layout, *report.rows, report.events, report.texts, styles);
    if (!walk.begin()) return {};
    Strip strip;
    for (const SectionKind heading : {SectionKind::ReportHeader, SectionKind::PageHeader})
        strip.append(walk.format(heading, {}));
    while (walk.hasRow()) walk.takeRow(strip);
    walk.finish(strip);
    return walk.hasPrinted() ? strip.take() : FormattedSection();
}
