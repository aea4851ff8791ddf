#include "reports/frame/page_search.h"

#include "reports/frame/page_fonts.h"

void PageSearch::setText(const QString& text) {
    text_ = text;
    hits_.clear();
    searched_ = 0;
}

static void searchItem(const QString& text, const PageItem& item, PageSearch::Hit hit,
                       std::vector<PageSearch::Hit>& hits) {
    for (qsizetype at = item.text.indexOf(text, 0, Qt::CaseInsensitive); at >= 0;
         at = item.text.indexOf(text, at + text.size(), Qt::CaseInsensitive)) {
        hit.from = static_cast<int>(at);
        hits.push_back(hit);
    }
}

void PageSearch::searchTo(const ReportPages& pages, int count) {
    if (text_.isEmpty()) return;
    for (; searched_ < count; ++searched_) {
        const std::vector<PageItem>& items = pages.pages[static_cast<std::size_t>(searched_)].items;
        for (std::size_t i = 0; i < items.size(); ++i)
            if (items[i].kind == ControlKind::Label) searchItem(text_, items[i], {searched_, i, 0}, hits_);
    }
}

std::pair<std::size_t, std::size_t> PageSearch::hitsOn(int page) const {
    const auto range = std::ranges::equal_range(hits_, page, {}, &Hit::page);
    const auto index = [this](auto at) { return static_cast<std::size_t>(at - hits_.begin()); };
    return {index(range.begin()), index(range.end())};
}

qsizetype PageSearch::firstFrom(int page) const {
    const auto found = std::ranges::lower_bound(hits_, page, {}, &Hit::page);
    return found == hits_.end() ? -1 : found - hits_.begin();
}

QRect PageSearch::place(const Hit& hit, const ReportJob& job) const {
    const PageItem& item = job.pages().pages[static_cast<std::size_t>(hit.page)].items[hit.item];
    const StyleFont font(job.pages().styles[item.style], job.rendering());
    const FittedText fit = font.fitted(item);
    const auto widthOf = [&](int from, qsizetype size) {
        return font.width(item.text.mid(from, size)) * fit.percent / 100;
    };
    const int left = font.leftOf(item, fit) + widthOf(0, hit.from);
    return QRect(left, item.place.top(), widthOf(hit.from, text_.size()),
                 QFontMetrics(font.font()).height()) &
           item.place.adjusted(0, 0, 0, item.place.height());
}
