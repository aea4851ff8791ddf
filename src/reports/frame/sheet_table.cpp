#include "reports/frame/sheet_table.h"

#include <QHash>
#include <QStringView>
#include <algorithm>
#include <cstdlib>
#include <deque>
#include <limits>
#include <map>
#include <optional>
#include <set>
#include <utility>

namespace {
// Texts whose tops lie this close together stand on one line.
constexpr int sameLine = 110;

using Items = std::vector<const PageItem*>;

int leftOf(const PageItem& item) { return item.place.left(); }
int rightOf(const PageItem& item) { return item.place.left() + item.place.width(); }
int overlap(const PageItem& a, const PageItem& b) {
    return std::min(rightOf(a), rightOf(b)) - std::max(leftOf(a), leftOf(b));
}

bool isGroup(SectionKind kind) {
    return kind == SectionKind::GroupHeader1 || kind == SectionKind::GroupHeader2;
}
bool isOuterGroup(SectionKind kind) {
    return kind == SectionKind::GroupHeader1 || kind == SectionKind::GroupFooter1;
}
bool isFooter(SectionKind kind) {
    return kind == SectionKind::GroupFooter1 || kind == SectionKind::GroupFooter2 ||
           kind == SectionKind::ReportFooter;
}
bool standsOutside(SectionKind kind) {
    return kind == SectionKind::ReportHeader || kind == SectionKind::PageHeader ||
           kind == SectionKind::PageFooter;
}
bool tellsPage(const ReportControl& control) {
    return control.shows == Shows::PageNumber || control.shows == Shows::PageCount ||
           control.shows == Shows::PageText;
}
bool sharesEdge(const PageItem& a, const PageItem& b) {
    return std::abs(leftOf(a) - leftOf(b)) < sameLine || std::abs(rightOf(a) - rightOf(b)) < sameLine;
}
// "txtAmount" and "lblAmount" belong together.
QStringView baseName(const ReportControl& control) { return QStringView(control.name).mid(3); }

// Where a text has room beside others: its own column, or else the nearest.
int distance(const PageItem& from, const PageItem& to) { return -overlap(from, to); }

class TableMaker {
  public:
    explicit TableMaker(const ReportPages& pages) : pages_(pages), texts_(textsInOrder()) {
        lineKind_ = kindOfLines();
        changing_ = changingControls();
        for (const PageControl& each : pages.controls)
            if (each.depth == 0 && isGroup(each.section))
                innerLevel_ = std::max(innerLevel_, levelOf(each) + 1);
    }

    SheetTable make() {
        findColumns();
        for (std::size_t i = 0; i < columnItems_.size(); ++i)
            table_.columns.push_back({headOf(*columnItems_[i]), &controlOf(*columnItems_[i]).control});
        forEachBand([this](const Items& band) { addBand(band); });
        addOutside();
        return std::move(table_);
    }

  private:
    const PageControl& controlOf(const PageItem& item) const { return pages_.controls[item.control]; }
    SectionKind kindOf(const PageItem& item) const { return controlOf(item).section; }
    int levelOf(const PageControl& control) const { return isOuterGroup(control.section) ? 0 : 1; }

    // Section by section, as they stand on the pages. What is printed again at the top of a page is left out.
    Items textsInOrder() const {
        Items texts;
        for (const ReportPage& page : pages_.pages)
            for (const PageItem& item : page.items)
                if (item.kind == ControlKind::Label && item.band > 0) texts.push_back(&item);
        QHash<quint32, qsizetype> places;
        for (const PageItem* item : texts)
            if (!places.contains(item->band)) places.insert(item->band, places.size());
        std::ranges::stable_sort(texts, {},
                                 [&places](const PageItem* item) { return places.value(item->band); });
        return texts;
    }

    template <class Take>
    void forEachBand(Take take) const {
        for (std::size_t from = 0, to = 0; from < texts_.size(); from = to) {
            while (to < texts_.size() && texts_[to]->band == texts_[from]->band) ++to;
            take(Items(texts_.begin() + static_cast<std::ptrdiff_t>(from),
                       texts_.begin() + static_cast<std::ptrdiff_t>(to)));
        }
    }

    // A report that prints no lines of its own has those of its groups.
    SectionKind kindOfLines() const {
        for (const SectionKind kind :
             {SectionKind::Detail, SectionKind::GroupHeader2, SectionKind::GroupFooter2,
              SectionKind::GroupHeader1, SectionKind::GroupFooter1, SectionKind::ReportFooter})
            if (std::ranges::any_of(texts_, [&](const PageItem* item) { return kindOf(*item) == kind; }))
                return kind;
        return SectionKind::Detail;
    }

    // Columns

    bool makesColumn(const PageItem& item) const {
        const ReportControl& control = controlOf(item).control;
        const bool isFixed = control.kind == ControlKind::Label && !control.text.isEmpty();
        return kindOf(item) == lineKind_ && !isFixed;
    }

    void findColumns() {
        std::map<quint16, const PageItem*> first;
        for (const PageItem* item : texts_)
            if (makesColumn(*item)) first.try_emplace(static_cast<quint16>(item->control), item);
        for (const auto& [control, item] : first) columnItems_.push_back(item);
        addEmptyColumns(first);
        addColumnsOfGroups();
        std::ranges::stable_sort(columnItems_, {}, [](const PageItem* item) { return leftOf(*item); });
        for (std::size_t i = 0; i < columnItems_.size(); ++i)
            columnOf_[columnItems_[i]->control] = static_cast<int>(i);
    }

    // A field that shows nothing on any line keeps its column where that has a head.
    void addEmptyColumns(const std::map<quint16, const PageItem*>& shown) {
        for (std::size_t i = 0; i < pages_.controls.size(); ++i) {
            const PageControl& each = pages_.controls[i];
            const auto number = static_cast<quint16>(i);
            if (each.section != lineKind_ || each.depth > 0 || each.control.kind != ControlKind::Field ||
                shown.contains(number))
                continue;
            PageItem& empty = empty_.emplace_back();
            empty.place = QRect(pages_.setup.left + each.control.left, 0, each.control.width, 1);
            empty.control = number;
            if (headOver(empty)) columnItems_.push_back(&empty);
        }
    }

    // What stands in the headings and footers of groups alone has a column where it has a head.
    void addColumnsOfGroups() {
        std::set<quint16> seen;
        for (const PageItem* item : texts_) {
            const bool mayBe =
                !standsOutside(kindOf(*item)) && !isLabel(*item) && controlOf(*item).depth == 0;
            if (!mayBe || !seen.insert(static_cast<quint16>(item->control)).second) continue;
            const bool hasColumn = std::ranges::any_of(
                columnItems_, [&](const PageItem* one) { return overlap(*one, *item) > 0; });
            if (!hasColumn && lowestLabelOver(*item, SectionKind::PageHeader)) columnItems_.push_back(item);
        }
    }

    QString headOf(const PageItem& field) {
        const PageItem* head = headOver(field);
        if (!head) return {};
        heads_.push_back(head);
        return wholeText(*head);
    }

    // The label of the field's name at one of its edges; else the one over it in the lowest line of a
    // heading.
    const PageItem* headOver(const PageItem& field) const {
        const PageItem* head = labelNamedAs(field);
        for (const SectionKind kind : {SectionKind::PageHeader, SectionKind::ReportHeader,
                                       SectionKind::GroupHeader2, SectionKind::GroupHeader1})
            if (!head && kind != lineKind_) head = lowestLabelOver(field, kind);
        return head;
    }

    bool isLabel(const PageItem& item) const { return controlOf(item).control.kind == ControlKind::Label; }

    const PageItem* labelNamedAs(const PageItem& field) const {
        for (const PageItem* item : texts_) {
            const bool isHeading = standsOutside(kindOf(*item)) || isGroup(kindOf(*item));
            if (isHeading && kindOf(*item) != lineKind_ && isLabel(*item) && sharesEdge(*item, field) &&
                baseName(controlOf(*item).control) == baseName(controlOf(field).control))
                return item;
        }
        return nullptr;
    }

    const PageItem* lowestLabelOver(const PageItem& field, SectionKind kind) const {
        const PageItem* best = nullptr;
        const int line = lowestLine(kind) - sameLine;
        for (const PageItem* item : texts_)
            if (kindOf(*item) == kind && isLabel(*item) && controlOf(*item).control.top >= line &&
                overlap(*item, field) > 0 && (!best || overlap(*item, field) > overlap(*best, field)))
                best = item;
        return best;
    }

    int lowestLine(SectionKind kind) const {
        int top = 0;
        for (const PageControl& each : pages_.controls)
            if (each.section == kind && each.control.kind == ControlKind::Label)
                top = std::max(top, each.control.top);
        return top;
    }

    // Rows

    QString wholeText(const PageItem& item) const {
        const auto whole = pages_.wholeTexts.constFind(ReportPages::textKey(item.band, item.control));
        return whole == pages_.wholeTexts.constEnd() ? item.text : *whole;
    }

    // One for each control: the lines of a text that was broken are one text.
    Items withoutLines(const Items& band) const {
        Items items;
        for (const PageItem* item : band)
            if (std::ranges::none_of(items,
                                     [&](const PageItem* one) { return one->control == item->control; }))
                items.push_back(item);
        return items;
    }

    void addBand(const Items& band) {
        const PageControl& control = controlOf(*band.front());
        const Items items = withoutLines(band);
        if (control.section == SectionKind::PageHeader) addChangedHeading(control, items);
        if (standsOutside(control.section)) return keepOutside(control.section, items);
        if (control.section == lineKind_) return addLine(control, items);
        for (const Items& line : linesOf(items)) addRow(control, spread(line));
    }

    void addLine(const PageControl& control, const Items& items) {
        std::vector<SheetCell> cells;
        for (const PageItem* item : items)
            if (const auto column = columnOf_.find(item->control); column != columnOf_.end())
                cells.push_back(cellOf(*item, column->second));
        addRow(control, std::move(cells));
    }

    SheetCell cellOf(const PageItem& item, int column) const {
        return {column, wholeText(item), &controlOf(item).control};
    }

    void addRow(const PageControl& control, std::vector<SheetCell> cells) {
        if (cells.empty()) return;
        std::ranges::sort(cells, {}, &SheetCell::column);
        const bool isLine = control.section == lineKind_;
        table_.rows.push_back(
            {rowLevel(control), isLine, !isLine && isFooter(control.section), std::move(cells)});
    }

    int rowLevel(const PageControl& control) const {
        if (control.depth > 0) return innerLevel_ + control.depth;
        if (control.section == SectionKind::ReportFooter || standsOutside(control.section)) return 0;
        const bool isOfGroup = isGroup(control.section) || isFooter(control.section);
        return isOfGroup ? levelOf(control) : innerLevel_;
    }

    std::vector<Items> linesOf(Items items) const {
        std::ranges::stable_sort(items, {}, [this](const PageItem* item) {
            return std::pair(controlOf(*item).control.top, leftOf(*item));
        });
        std::vector<Items> lines;
        int top = 0;
        for (const PageItem* item : items) {
            const int own = controlOf(*item).control.top;
            if (lines.empty() || own - top > sameLine) {
                lines.emplace_back();
                top = own;
            }
            lines.back().push_back(item);
        }
        for (Items& line : lines)
            std::ranges::stable_sort(line, {}, [](const PageItem* item) { return leftOf(*item); });
        return lines;
    }

    // Figures under the columns that they stand under, then the other texts where room is left.
    std::vector<SheetCell> spread(const Items& line) const {
        std::vector<SheetCell> cells;
        for (const bool isFigure : {true, false})
            for (const PageItem* item : line)
                if (item->isFigure == isFigure) cells.push_back(cellOf(*item, freeColumn(*item, cells)));
        return cells;
    }

    int freeColumn(const PageItem& item, const std::vector<SheetCell>& taken) const {
        const auto isFree = [&](int column) {
            return !std::ranges::count(taken, column, &SheetCell::column);
        };
        std::optional<int> best;
        const auto count = static_cast<int>(columnItems_.size());
        for (int column = 0; column < count; ++column)
            if (isFree(column) &&
                (!best || distance(item, columnItem(column)) < distance(item, columnItem(*best))))
                best = column;
        if (best) return *best;
        int column = count;
        while (!isFree(column)) ++column;
        return column;
    }

    const PageItem& columnItem(int column) const { return *columnItems_[static_cast<std::size_t>(column)]; }

    // Where pages begin with what they are about, as those of a customer with the name, it heads their rows.
    void addChangedHeading(const PageControl& control, const Items& items) {
        QString heading;
        for (const PageItem* item : items)
            if (changing_.contains(item->control)) heading += wholeText(*item) + '\n';
        if (heading == heading_) return;
        heading_ = heading;
        for (const Items& line : linesOf(items))
            if (changes(line)) addRow(control, inOrder(line));
    }

    bool changes(const Items& line) const {
        return std::ranges::any_of(
            line, [this](const PageItem* item) { return changing_.contains(item->control); });
    }

    // The fields of the pages' headings that do not show the same on all pages.
    std::set<quint32> changingControls() const {
        std::map<std::pair<quint32, int>, QString> shown;  // by control, and by the line of a broken text
        std::set<quint32> changing;
        for (const PageItem* item : texts_) {
            const PageControl& control = controlOf(*item);
            if (control.section != SectionKind::PageHeader || control.depth > 0 ||
                tellsPage(control.control) || control.control.name == "lblRunDate")
                continue;
            const auto [first, isNew] = shown.try_emplace({item->control, item->place.top()}, item->text);
            if (!isNew && first->second != item->text) changing.insert(item->control);
        }
        return changing;
    }

    // What stands outside the lines: of the first page its heading, of the last its footer.
    void keepOutside(SectionKind kind, const Items& items) {
        if (kind == SectionKind::PageFooter || !outside_.contains(kind)) outside_[kind] = items;
    }

    void addOutside() {
        bool isFirst = true;
        for (const SectionKind kind :
             {SectionKind::ReportHeader, SectionKind::PageHeader, SectionKind::PageFooter})
            for (const Items& line : linesOf(outside_[kind])) {
                std::vector<SheetCell> cells = inOrder(line);
                if (cells.empty() || changes(line)) continue;
                if (std::exchange(isFirst, false)) table_.rows.emplace_back();
                table_.rows.push_back({0, false, false, std::move(cells)});
            }
    }

    // Neither heads of columns nor page numbers with the words before them.
    std::vector<SheetCell> inOrder(const Items& line) const {
        std::vector<SheetCell> cells;
        for (const PageItem* item : line) {
            if (tellsPage(controlOf(*item).control)) {
                if (!cells.empty()) cells.pop_back();
            } else if (!std::ranges::count(heads_, item)) {
                cells.push_back(cellOf(*item, static_cast<int>(cells.size())));
            }
        }
        return cells;
    }

    const ReportPages& pages_;
    const Items texts_;
    SectionKind lineKind_ = SectionKind::Detail;
    int innerLevel_ = 0;  // of a line of the report
    SheetTable table_;
    Items columnItems_, heads_;  // the first of each column
    std::map<quint16, int> columnOf_;
    std::map<SectionKind, Items> outside_;
    std::deque<PageItem> empty_;  // of columns
    std::set<quint32> changing_;
    QString heading_;  // as it was last written
};
}  // namespace

SheetTable sheetTable(const ReportPages& pages) { return TableMaker(pages).make(); }
