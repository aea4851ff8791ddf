#include "reports/frame/report_run.h"

#include "platform/masks.h"
#include "reports/frame/report_walk.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {
// Under a heading that leaves less than this, a section runs over the foot.
constexpr int leastRoom = 1440;

int bottomOf(const PageItem& item) { return item.place.top() + item.place.height(); }

// The least top of what does not fit above the limit; what stands from there on goes to the next page, so
// that what stands side by side breaks together.
int cutAbove(const FormattedSection& section, int limit) {
    int cut = limit;
    for (const PageItem& item : section.items)
        if (bottomOf(item) > limit) cut = std::min(cut, item.place.top());
    return std::max(besideWholes(section, cut), 1);
}

FormattedSection takeFrom(FormattedSection& section, int cut, int limit) {
    FormattedSection rest;
    rest.height = section.height - cut;
    rest.lastRow = std::max(0, section.lastRow - cut);
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
    qsizetype rowsTaken() const { return walk_.rowsTaken(); }

  private:
    // A heading never stands alone at the foot of a page: it goes with the first line of its group.
    void putLine(std::vector<FormattedSection> headings, FormattedSection line) override {
        if (top_ > bodyTop_ && std::ranges::any_of(headings, &FormattedSection::startsPages)) newSet();
        int needed = line.height;
        for (const FormattedSection& heading : headings) needed += heading.height;
        if (!headings.empty() && needed > room() && needed <= pageRoom()) newPage();
        for (FormattedSection& heading : headings) put(std::move(heading));
        put(std::move(line));
    }

    // What ends a report takes its last line along to the next page, rather than stand there alone; the last
    // line of a group stays under its heading.
    void putFooter(FormattedSection footer) override {
        if (endsOnOnlyPage(footer)) return append(footer);
        if (footer.height > room() && !layout_.section(SectionKind::GroupHeader1))
            takeLastLineAlong(footer.height);
        put(std::move(footer));
    }

    // A page footer that shows nothing on a paper of one page leaves its room to the end of the report.
    bool endsOnOnlyPage(const FormattedSection& footer) const {
        const ReportSection* foot = layout_.section(SectionKind::PageFooter);
        if (!foot || pages_.pages.size() != 1) return false;
        const auto isPageOfPages = [](const ReportControl& control) {
            return control.shows == Shows::PageOfPages;
        };
        return std::ranges::all_of(foot->controls, isPageOfPages) && footer.height <= room() + foot->height;
    }

    // Unless nothing else stands on its page.
    void takeLastLineAlong(int footerHeight) {
        const int cut = lastLine_;
        FormattedSection line;
        line.height = top_ - cut;
        if (cut <= bodyTop_ || line.height + footerHeight > pageRoom()) return;
        std::vector<PageItem>& items = pages_.pages.back().items;
        const auto along = std::ranges::stable_partition(
            items, [cut](const PageItem& item) { return item.place.top() < cut; });
        for (PageItem& item : along) {
            item.place.translate(-layout_.page.left, -cut);
            line.items.push_back(std::move(item));
        }
        items.erase(along.begin(), along.end());
        newPage();
        append(line);
    }

    void finish() {
        walk_.finish(*this);
        if (!walk_.hasPrinted()) pages_.pages.clear();
        for (std::size_t i = 0; i < pages_.pages.size(); ++i)
            place(walk_.format(SectionKind::PageFooter, pageOf(i)), pages_.pages[i], bodyBottom());
        fillHeadings();
        isComplete_ = true;
    }

    // Within its set.
    ReportWalk::PageOf pageOf(std::size_t page) const {
        const auto next = std::ranges::upper_bound(firstPages_, page);
        const std::size_t end = next == firstPages_.end() ? pages_.pages.size() : *next;
        const std::size_t first = *std::prev(next);
        return {static_cast<qsizetype>(page + 1 - first), static_cast<qsizetype>(end - first)};
    }

    // Pages

    int bodyBottom() const {
        const ReportSection* footer = layout_.section(SectionKind::PageFooter);
        return layout_.page.paperHeight - layout_.page.bottom - (footer ? footer->height : 0);
    }
    int room() const { return bodyBottom() - top_; }
    int pageRoom() const { return bodyBottom() - bodyTop_; }

    void newSet() {
        firstPages_.push_back(pages_.pages.size());
        newPage();
    }

    void newPage() {
        startPage(SectionKind::PageHeader);
        for (FormattedSection& heading : walk_.repeatedHeadings()) {
            for (PageItem& item : heading.items) item.band = 0;
            append(heading);
        }
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
        const std::size_t page = pages_.pages.size() - 1;
        const FormattedSection heading = walk_.format(kind, {pageOf(page).number, 0});
        for (const std::size_t item : heading.withoutCount)
            withoutCount_.emplace_back(page, pages_.pages.back().items.size() + item);
        append(heading);
    }

    // On this page where it fits, on the next where it fits there, over several where it fits on none.
    void put(FormattedSection section) {
        if (section.height > room() && top_ > bodyTop_) newPage();
        while (section.height > room() && pageRoom() > leastRoom) {
            const int limit = room();
            FormattedSection rest = takeFrom(section, cutAbove(section, limit), limit);
            append(section);
            if (rest.items.empty()) return;  // a blank needs no page
            section = std::move(rest);
            newPage();
        }
        append(section);
    }

    void append(const FormattedSection& section) {
        lastLine_ = top_ + section.lastRow;
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
        for (const auto& [page, item] : withoutCount_)
            if (page < pages_.pages.size())
                pages_.pages[page].items[item].text.replace(laterText, formatCount(pageOf(page).count));
    }

    const ReportLayout& layout_;
    ReportPages pages_;
    ReportWalk walk_;
    std::vector<std::pair<std::size_t, std::size_t>> withoutCount_;  // page and item
    std::vector<std::size_t> firstPages_{0};                         // of each set
    bool hasBegun_ = false, isComplete_ = false;
    int top_ = 0, bodyTop_ = 0;
    int lastLine_ = 0;  // where it begins on the page
};

ReportRun::ReportRun(const ReportLayout& layout, ReportSource& rows, ReportEvents events, RunTexts texts)
    : engine_(std::make_unique<Engine>(layout, rows, std::move(events), std::move(texts))) {}

ReportRun::~ReportRun() = default;

bool ReportRun::layOutPage() { return engine_->layOutPage(); }

bool ReportRun::isComplete() const { return engine_->isComplete(); }

const ReportPages& ReportRun::pages() const { return engine_->pages(); }

qsizetype ReportRun::rowsTaken() const { return engine_->rowsTaken(); }

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
