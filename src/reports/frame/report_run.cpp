#include "reports/frame/report_run.h"

#include "platform/masks.h"
#include "reports/frame/report_walk.h"

#include <utility>

namespace {
int bottomOf(const PageItem& item) { return item.place.top() + item.place.height(); }

// The least top of what does not fit above the limit; what stands from there on goes to the next page, so
// that what stands side by side breaks together.
int cutAbove(const FormattedSection& section, int limit) {
    int cut = limit;
    for (const PageItem& item : section.items)
        if (bottomOf(item) > limit) cut = std::min(cut, item.place.top());
    for (int above = 0; above != cut;) {
        above = cut;
        for (const Span& whole : section.wholes)
            if (whole.top > 0 && whole.top < cut && whole.bottom > cut) cut = whole.top;
    }
    return std::max(cut, 1);
}

FormattedSection takeFrom(FormattedSection& section, int cut, int limit) {
    FormattedSection rest;
    rest.height = section.height - cut;
    const bool isTooHigh = cut == 1;  // for any page: what fits beside it stays
    std::vector<PageItem> kept;
    for (PageItem& item : section.items) {
        const bool stays = item.place.top() < cut || (isTooHigh && bottomOf(item) <= limit);
        if (!stays) item.place.translate(0, -cut);
        (stays ? kept : rest.items).push_back(std::move(item));
    }
    for (const Span& whole : section.wholes) rest.wholes.push_back({whole.top - cut, whole.bottom - cut});
    section.items = std::move(kept);
    section.height = cut;
    return rest;
}
}  // namespace

class ReportRun::Engine : private BandPaper {
  public:
    Engine(const ReportLayout& layout, ReportSource& rows, ReportEvents events, RunTexts texts)
        : layout_(layout), walk_(layout, rows, std::move(events), std::move(texts), pages_) {
        pages_.caption = layout.caption;
        pages_.setup = layout.page;
    }

    // Works until one more page is full, or all is done.
    bool layOutPage() {
        if (isComplete_) return false;
        if (!std::exchange(hasBegun_, true) && walk_.begin()) startPage(SectionKind::ReportHeader);
        const std::size_t before = pages_.pages.size();
        while (walk_.hasRow() && pages_.pages.size() == before) walk_.takeRow(*this);
        if (!walk_.hasRow()) finish();
        return true;
    }

    bool isComplete() const { return isComplete_; }
    ReportPages& pages() { return pages_; }

  private:
    // A heading never stands alone at the foot of a page: it goes with the first line of its group.
    void putLine(std::vector<FormattedSection> headings, FormattedSection line) override {
        int needed = line.height;
        for (const FormattedSection& heading : headings) needed += heading.height;
        if (!headings.empty() && needed > room() && needed <= pageRoom()) newPage();
        for (FormattedSection& heading : headings) put(std::move(heading));
        put(std::move(line));
    }

    void putFooter(FormattedSection footer) override { put(std::move(footer)); }

    void finish() {
        walk_.finish(*this);
        if (!walk_.hasPrinted()) pages_.pages.clear();
        for (std::size_t i = 0; i < pages_.pages.size(); ++i)
            place(walk_.format(SectionKind::PageFooter, pageOf(i)), pages_.pages[i], bodyBottom());
        fillHeadings();
        isComplete_ = true;
    }

    ReportWalk::PageOf pageOf(std::size_t page) const {
        return {static_cast<qsizetype>(page + 1), static_cast<qsizetype>(pages_.pages.size())};
    }

    // Pages

    int bodyBottom() const {
        const ReportSection* footer = layout_.section(SectionKind::PageFooter);
        return layout_.page.paperHeight - layout_.page.bottom - (footer ? footer->height : 0);
    }
    int room() const { return bodyBottom() - top_; }
    int pageRoom() const { return bodyBottom() - bodyTop_; }

    void newPage() {
        startPage(SectionKind::PageHeader);
        for (const FormattedSection& heading : walk_.repeatedHeadings()) append(heading);
        bodyTop_ = top_;
    }

    // The report header stands before the page header, on the first page alone.
    void startPage(SectionKind first) {
        pages_.pages.emplace_back();
        top_ = layout_.page.top;
        if (first == SectionKind::ReportHeader) appendHeading(first);
        appendHeading(SectionKind::PageHeader);
        bodyTop_ = top_;
    }

    void appendHeading(SectionKind kind) {
        const FormattedSection heading = walk_.format(kind, {static_cast<qsizetype>(pages_.pages.size()), 0});
        for (const std::size_t item : heading.withoutCount)
            withoutCount_.emplace_back(pages_.pages.size() - 1, pages_.pages.back().items.size() + item);
        append(heading);
    }

    // On this page where it fits, on the next where it fits there, over several where it fits on none.
    void put(FormattedSection section) {
        if (section.height > room() && top_ > bodyTop_) newPage();
        while (section.height > room()) {
            const int limit = room();
            FormattedSection rest = takeFrom(section, cutAbove(section, limit), limit);
            append(section);
            section = std::move(rest);
            newPage();
        }
        append(section);
    }

    void append(const FormattedSection& section) {
        place(section, pages_.pages.back(), top_);
        top_ += section.height;
    }

    void place(const FormattedSection& section, ReportPage& page, int top) const {
        for (PageItem item : section.items) {
            item.place.translate(layout_.page.left, top);
            page.items.push_back(std::move(item));
        }
    }

    void fillHeadings() {
        const QString count = formatCount(static_cast<qint64>(pages_.pages.size()));
        for (const auto& [page, item] : withoutCount_)
            if (page < pages_.pages.size()) pages_.pages[page].items[item].text.replace(laterText, count);
    }

    const ReportLayout& layout_;
    ReportPages pages_;
    ReportWalk walk_;
    std::vector<std::pair<std::size_t, std::size_t>> withoutCount_;  // page and item
    bool hasBegun_ = false, isComplete_ = false;
    int top_ = 0, bodyTop_ = 0;
};

ReportRun::ReportRun(const ReportLayout& layout, ReportSource& rows, ReportEvents events, RunTexts texts)
    : engine_(std::make_unique<Engine>(layout, rows, std::move(events), std::move(texts))) {}

ReportRun::~ReportRun() = default;

bool ReportRun::layOutPage() { return engine_->layOutPage(); }

bool ReportRun::isComplete() const { return engine_->isComplete(); }

const ReportPages& ReportRun::pages() const { return engine_->pages(); }

ReportPages ReportRun::takePages() { return std::move(engine_->pages()); }

ReportPages runReport(ReportJobParts& parts) {
    return runReport(parts.layout, *parts.rows, parts.events, parts.texts);
}

ReportPages runReport(const ReportLayout& layout, ReportSource& rows, const ReportEvents& events,
                      const RunTexts& texts) {
    ReportRun run(layout, rows, events, texts);
    while (run.layOutPage()) {
    }
    return run.takePages();
}
