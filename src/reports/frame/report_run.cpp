#include "reports/frame/report_run.h"

#include "platform/masks.h"
#include "reports/frame/section_formatter.h"

#include <climits>

namespace {
// The summed fields of one group, or of the whole report: for each of its summary fields what has come
// together.
class Sums {
  public:
    explicit Sums(const ReportSection* footer) : footer_(footer) {}

    void clear() { values_.clear(); }
    void add(const ReportSource& row) {
        if (!footer_) return;
        for (const ReportControl& field : footer_->controls) {
            if (field.summary == Summary::Sum) values_[field.name] += row.currency(field.column);
            if (field.summary == Summary::Count) values_[field.name] += Currency::fromInteger(1);
        }
    }
    QString text(const ReportControl& field) const {
        const Currency value = values_.value(field.name);
        return field.mask ? formatNumber(value, field.mask) : value.toPlainText();
    }

  private:
    const ReportSection* footer_;
    QHash<QString, Currency> values_;
};

struct Group {
    const ReportSection* header;
    const ReportSection* footer;
    Sums sums;
    bool isOpen = false;
    QString value;
    FormattedSection heading;  // as printed, for the pages that the group runs on to
};

// The least top of the items that do not fit above the limit; what stands from there on goes to the next
// page.
int cutAbove(const FormattedSection& section, int limit) {
    int cut = limit;
    for (const PageItem& item : section.items)
        if (item.place.top() + item.place.height() > limit) cut = std::min(cut, item.place.top());
    return std::max(cut, 1);
}

FormattedSection takeFrom(FormattedSection& section, int cut, int limit) {
    FormattedSection rest;
    rest.height = section.height - cut;
    std::vector<PageItem> kept;
    for (PageItem& item : section.items) {
        const bool fits = item.place.top() + item.place.height() <= limit || item.place.top() < cut;
        if (!fits) item.place.translate(0, -cut);
        (fits ? kept : rest.items).push_back(std::move(item));
    }
    section.items = std::move(kept);
    section.height = cut;
    return rest;
}
}  // namespace

class ReportRun::Engine {
  public:
    Engine(const ReportLayout& layout, ReportSource& rows, ReportEvents events)
        : layout_(layout),
          rows_(rows),
          events_(std::move(events)),
          reportSums_(layout.section(SectionKind::ReportFooter)) {
        pages_.caption = layout.caption;
        pages_.setup = layout.page;
        addGroup(SectionKind::GroupHeader1, SectionKind::GroupFooter1);
        addGroup(SectionKind::GroupHeader2, SectionKind::GroupFooter2);
    }

    // Works until one more page is full, or all is done.
    bool layOutPage() {
        if (isComplete_) return false;
        if (!hasBegun_) begin();
        const std::size_t before = pages_.pages.size();
        while (hasRow_ && pages_.pages.size() == before) takeRow();
        if (!hasRow_) finish();
        return true;
    }

    bool isComplete() const { return isComplete_; }
    ReportPages& pages() { return pages_; }

  private:
    void addGroup(SectionKind header, SectionKind footer) {
        const ReportSection* section = layout_.section(header);
        if (!section) return;
        groups_.push_back({section, layout_.section(footer), Sums(layout_.section(footer)), false, {}, {}});
    }

    void begin() {
        hasBegun_ = true;
        hasRow_ = rows_.next();
        if (!hasRow_) return;
        startPage(SectionKind::ReportHeader);
    }

    void takeRow() {
        const std::size_t changed = firstChangedGroup();
        if (changed < groups_.size() && groups_.back().isOpen) {
            rows_.lookBack(true);
            closeGroups(changed);
            rows_.lookBack(false);
        }
        printRow(openGroups(changed));
        for (Group& group : groups_) group.sums.add(rows_);
        reportSums_.add(rows_);
        hasRow_ = rows_.next();
    }

    std::size_t firstChangedGroup() const {
        std::size_t changed = 0;
        while (changed < groups_.size() && groups_[changed].isOpen &&
               groups_[changed].value == rows_.text(groups_[changed].header->groupColumn))
            ++changed;
        return changed;
    }

    // From the inner to the outer.
    void closeGroups(std::size_t outermost) {
        for (std::size_t i = groups_.size(); i-- > outermost;) {
            Group& group = groups_[i];
            if (!group.isOpen) continue;
            group.isOpen = false;
            if (group.footer)
                put(format(*group.footer,
                           [&](const ReportControl& field) { return group.sums.text(field); }));
            group.sums.clear();
        }
    }

    // The headings of the groups that begin with this row, not printed yet.
    std::vector<FormattedSection> openGroups(std::size_t outermost) {
        std::vector<FormattedSection> headings;
        for (std::size_t i = outermost; i < groups_.size(); ++i) {
            groups_[i].value = rows_.text(groups_[i].header->groupColumn);
            groups_[i].heading = format(*groups_[i].header);
            headings.push_back(groups_[i].heading);
        }
        return headings;
    }

    // A heading never stands alone at the foot of a page: it goes with the first line of its group.
    void printRow(std::vector<FormattedSection> headings) {
        const ReportSection* detail = layout_.section(SectionKind::Detail);
        FormattedSection line = detail ? format(*detail) : FormattedSection();
        int needed = line.height;
        for (const FormattedSection& heading : headings) needed += heading.height;
        if (!headings.empty() && needed > room() && needed <= pageRoom()) newPage();
        for (FormattedSection& heading : headings) put(std::move(heading));
        for (Group& group : groups_) group.isOpen = true;
        put(std::move(line));
    }

    void finish() {
        if (!pages_.pages.empty()) {
            rows_.lookBack(true);
            closeGroups(0);
            if (const ReportSection* footer = layout_.section(SectionKind::ReportFooter))
                put(format(*footer, [this](const ReportControl& field) { return reportSums_.text(field); }));
            layPageFooters();
        }
        isComplete_ = true;
    }

    void layPageFooters() {
        const ReportSection* footer = layout_.section(SectionKind::PageFooter);
        if (!footer) return;
        const qint64 count = static_cast<qint64>(pages_.pages.size());
        for (ReportPage& page : pages_.pages)
            place(format(*footer, [count](const ReportControl&) { return QString::number(count); }), page,
                  bodyBottom());
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
        for (const Group& group : groups_)
            if (group.isOpen && group.header->repeats) append(group.heading);
        bodyTop_ = top_;
    }

    // The report header stands before the page header, on the first page alone.
    void startPage(SectionKind first) {
        pages_.pages.emplace_back();
        top_ = layout_.page.top;
        if (first == SectionKind::ReportHeader) appendSection(SectionKind::ReportHeader);
        appendSection(SectionKind::PageHeader);
        bodyTop_ = top_;
    }

    void appendSection(SectionKind kind) {
        if (const ReportSection* section = layout_.section(kind)) append(format(*section));
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

    FormattedSection format(const ReportSection& section, const SummaryText& summary = noSummary) {
        return section.height == 0 ? FormattedSection()
                                   : formatSection(section, rows_, events_, summary, pages_);
    }

    static QString noSummary(const ReportControl&) { return {}; }

    const ReportLayout& layout_;
    ReportSource& rows_;
    ReportEvents events_;
    ReportPages pages_;
    std::vector<Group> groups_;
    Sums reportSums_;
    bool hasBegun_ = false, hasRow_ = false, isComplete_ = false;
    int top_ = 0, bodyTop_ = 0;
};

ReportRun::ReportRun(const ReportLayout& layout, ReportSource& rows, ReportEvents events)
    : engine_(std::make_unique<Engine>(layout, rows, std::move(events))) {}

ReportRun::~ReportRun() = default;

bool ReportRun::layOutPage() { return engine_->layOutPage(); }

bool ReportRun::isComplete() const { return engine_->isComplete(); }

const ReportPages& ReportRun::pages() const { return engine_->pages(); }

ReportPages ReportRun::takePages() { return std::move(engine_->pages()); }

ReportPages runReport(const ReportLayout& layout, ReportSource& rows, const ReportEvents& events) {
    ReportRun run(layout, rows, events);
    while (run.layOutPage()) {
    }
    return run.takePages();
}
