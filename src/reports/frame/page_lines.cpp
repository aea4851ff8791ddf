#include "reports/frame/page_lines.h"

#include <algorithm>

namespace {
// Items whose tops lie this close together stand on one line.
constexpr int sameLine = 110;

std::vector<PageLine> linesOfKind(const ReportPage& page, ControlKind kind) {
    std::vector<const PageItem*> items;
    for (const PageItem& item : page.items)
        if (item.kind == kind && item.place.width() >= characterWidth) items.push_back(&item);
    const auto byTop = [](const PageItem* a, const PageItem* b) { return a->place.top() < b->place.top(); };
    std::stable_sort(items.begin(), items.end(), byTop);
    std::vector<PageLine> lines;
    for (const PageItem* item : items) {
        if (lines.empty() || item->place.top() - lines.back().top > sameLine)
            lines.push_back({item->place.top(), {}});
        lines.back().items.push_back(item);
    }
    return lines;
}

// A rule goes before a text whose upper half it lies in.
int order(const PageLine& line) { return line.isRule() ? line.top : line.top + sameLine; }
}  // namespace

std::vector<PageLine> linesOf(const ReportPage& page) {
    std::vector<PageLine> lines = linesOfKind(page, ControlKind::Label);
    for (PageLine& rule : linesOfKind(page, ControlKind::Line)) lines.push_back(std::move(rule));
    std::stable_sort(lines.begin(), lines.end(),
                     [](const PageLine& a, const PageLine& b) { return order(a) < order(b); });
    return lines;
}

int columnsOf(const PageItem& item) {
    const int left = item.place.left();
    return std::max(1, columnAt(left + item.place.width()) - columnAt(left));
}
