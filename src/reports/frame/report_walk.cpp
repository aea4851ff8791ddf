#include "reports/frame/report_walk.h"

#include "platform/masks.h"
#include "reports/frame/list_report.h"

#include <utility>

namespace {
const ReportSection* detailOf(const ReportLayout& layout) { return layout.section(SectionKind::Detail); }

qsizetype figureNamed(const ReportSection* line, const QString& name) {
    for (qsizetype i = 0; line && i < line->controls.size(); ++i)
        if (line->controls[i].name == name) return i;
    return -1;
}
}  // namespace

Sums::Sums(const ReportSection* footer, const ReportLayout& layout) {
    if (!footer) return;
    for (const ReportControl& field : footer->controls)
        if (field.shows == Shows::Sum || field.shows == Shows::Count) sums_.push_back(sumOf(field, layout));
}

// The line goes before the headings.
Sums::Sum Sums::sumOf(const ReportControl& field, const ReportLayout& layout) {
    for (const SectionKind kind :
         {SectionKind::Detail, SectionKind::GroupHeader1, SectionKind::GroupHeader2}) {
        const ReportSection* band = layout.section(kind);
        if (const qsizetype figure = figureNamed(band, field.column); figure >= 0)
            return {&field, band, figure, {}};
    }
    return {&field, detailOf(layout), -1, {}};
}

void Sums::add(const ReportSection* band, const ReportSource& row, const SectionFields* fields) {
    for (Sum& sum : sums_)
        if (sum.band == band) sum.value += summand(sum, row, fields);
}

// A field counts with the figure that its event gave it, else with its column.
Currency Sums::summand(const Sum& sum, const ReportSource& row, const SectionFields* fields) {
    if (sum.field->shows == Shows::Count) return Currency::fromInteger(1);
    if (sum.figure < 0 || !fields) return row.currency(sum.field->column);
    const auto& figure = fields->state(sum.figure).figure;
    const QString& column = fields->section().controls[sum.figure].column;
    return figure || column.isEmpty() ? figure.value_or(Currency()) : row.currency(column);
}

void Sums::clear() {
    for (Sum& sum : sums_) sum.value = {};
}

Currency Sums::of(const ReportControl& field) const {
    for (const Sum& sum : sums_)
        if (sum.field == &field) return sum.value;
    return {};
}

ReportWalk::ReportWalk(const ReportLayout& layout, ReportSource& rows, ReportEvents events, RunTexts texts,
                       ReportPages& styles)
    : layout_(layout),
      rows_(rows),
      events_(std::move(events)),
      texts_(std::move(texts)),
      styles_(styles),
      reportSums_(layout.section(SectionKind::ReportFooter), layout) {
    addGroup(SectionKind::GroupHeader1, SectionKind::GroupFooter1);
    addGroup(SectionKind::GroupHeader2, SectionKind::GroupFooter2);
}

void ReportWalk::addGroup(SectionKind header, SectionKind footer) {
    const ReportSection* section = layout_.section(header);
    if (!section) return;
    const ReportSection* foot = layout_.section(footer);
    groups_.push_back({section, foot, Sums(foot, layout_), false, {}, {}, {}});
}

bool ReportWalk::begin() { return hasRow_ = rows_.next(); }

void ReportWalk::takeRow(BandPaper& paper) {
    const std::size_t changed = firstChangedGroup();
    if (changed < groups_.size() && groups_.back().isOpen) {
        rows_.lookBack(true);
        closeGroups(changed, paper);
        rows_.lookBack(false);
    }
    printRow(openGroups(changed), paper);
}

std::size_t ReportWalk::firstChangedGroup() const {
    std::size_t changed = 0;
    while (changed < groups_.size() && groups_[changed].isOpen &&
           groups_[changed].value == rows_.text(groups_[changed].header->groupColumn))
        ++changed;
    return changed;
}

// From the inner to the outer.
void ReportWalk::closeGroups(std::size_t outermost, BandPaper& paper) {
    for (std::size_t i = groups_.size(); i-- > outermost;) {
        Group& group = groups_[i];
        if (!std::exchange(group.isOpen, false)) continue;
        paper.putFooter(format(group.footer, {&group.sums, {}}));
        group.sums.clear();
    }
}

// The headings of the groups that begin with this row, not printed yet.
std::vector<FormattedSection> ReportWalk::openGroups(std::size_t outermost) {
    std::vector<FormattedSection> headings;
    for (std::size_t i = outermost; i < groups_.size(); ++i) {
        openGroup(groups_[i]);
        headings.push_back(groups_[i].heading);
        headings.back().startsPages = groups_[i].header->startsPages;
    }
    return headings;
}

void ReportWalk::openGroup(Group& group) {
    group.value = rows_.text(group.header->groupColumn);
    group.heading = {};
    if (group.header->height == 0) return;
    group.begun = filled(*group.header, {});
    group.heading = layOut(*group.header, *group.begun, styles_);
}

void ReportWalk::printRow(std::vector<FormattedSection> headings, BandPaper& paper) {
    const ReportSection* detail = detailOf(layout_);
    const bool hasLine = detail && detail->height > 0;
    std::optional<SectionFields> fields;
    if (hasLine) fields = filled(*detail, {});
    if (hasEnded_) return;
    paper.putLine(std::move(headings), hasLine ? layOut(*detail, *fields, styles_) : FormattedSection());
    hasPrinted_ = true;
    sumUp(detail, fields ? &*fields : nullptr);
    ++rowsTaken_;
    hasRow_ = rows_.next();
}

// A heading counts with its first line.
void ReportWalk::sumUp(const ReportSection* line, const SectionFields* fields) {
    for (Group& group : groups_) {
        group.isOpen = true;
        if (group.begun) addToSums(group.header, &*group.begun);
        group.begun.reset();
    }
    addToSums(line, fields);
}

void ReportWalk::addToSums(const ReportSection* band, const SectionFields* fields) {
    for (Group& group : groups_) group.sums.add(band, rows_, fields);
    reportSums_.add(band, rows_, fields);
}

void ReportWalk::finish(BandPaper& paper) {
    if (!hasPrinted_) return;
    rows_.lookBack(true);
    closeGroups(0, paper);
    paper.putFooter(format(layout_.section(SectionKind::ReportFooter), {&reportSums_, {}}));
}

FormattedSection ReportWalk::format(SectionKind kind, PageOf page) {
    return format(layout_.section(kind), {nullptr, page});
}

std::vector<FormattedSection> ReportWalk::repeatedHeadings() const {
    std::vector<FormattedSection> headings;
    for (const Group& group : groups_)
        if (group.isOpen && group.header->repeats) headings.push_back(group.heading);
    return headings;
}

FormattedSection ReportWalk::format(const ReportSection* section, const Band& band) {
    if (!section || section->height == 0) return {};
    SectionFields fields = filled(*section, band);
    return layOut(*section, fields, styles_);
}

SectionFields ReportWalk::filled(const ReportSection& section, const Band& band) {
    SectionFields fields(section);
    for (qsizetype i = 0; i < section.controls.size(); ++i) fill(section.controls[i], fields.state(i), band);
    if (const auto event = events_.constFind(on(section.kind)); event != events_.constEnd())
        (*event)(rows_, fields);
    hasEnded_ = hasEnded_ || fields.endsReport();
    return fields;
}

void ReportWalk::fill(const ReportControl& control, SectionFields::State& state, const Band& band) const {
    if (control.kind != ControlKind::Field) {
        state.text = control.text.isEmpty() ? texts_.labels.value(control.name) : control.text;
    } else if (control.shows == Shows::Sum || control.shows == Shows::Count) {
        if (!band.sums) return;
        state.show(band.sums->of(control));
    } else if (control.shows != Shows::Column) {
        state.text = ownText(control, band.page);
    } else if (!control.column.isEmpty()) {
        state.text = fieldText(rows_, control.column, control.mask);
    }
}

QString ReportWalk::ownText(const ReportControl& control, PageOf page) const {
    const auto count = [&](qsizetype value) {
        return figureText(Currency::fromInteger(value), control.mask);
    };
    switch (control.shows) {
        case Shows::PageNumber:
            return count(page.number);
        case Shows::PageCount:
            return page.count > 0 ? count(page.count) : QString(laterText);
        case Shows::PageText:
            return formatCount(page.number) + " of  " +
                   (page.count > 0 ? formatCount(page.count) : QString(laterText));
        case Shows::PageOfPages:
            if (page.count < 2) return {};
            return "Page " + formatCount(page.number) + " of " + formatCount(page.count);
        case Shows::RecordCount:
            return count(rows_.rowCount());
        case Shows::Range:
            return texts_.range.isEmpty() ? runDateText() : texts_.range;
        default:
            return runDateText();
    }
}
