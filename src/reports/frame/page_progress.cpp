#include "reports/frame/page_progress.h"

#include "platform/masks.h"

static constexpr std::size_t shortReport = 20;

PageProgress::PageProgress(Progress& progress, const QString& doing, std::size_t pages)
    : progress_(progress), doing_(doing), pages_(pages) {
    if (pages > shortReport) scope_.emplace(progress, textAt(1), static_cast<qint64>(pages));
}

void PageProgress::setPage(std::size_t page) {
    if (!scope_) return;
    progress_.setText(textAt(page));
    progress_.setValue(static_cast<qint64>(page));
}

QString PageProgress::textAt(std::size_t page) const {
    const auto count = [](std::size_t number) { return formatCount(static_cast<qint64>(number)); };
    return QString("%1 page %2 of %3...").arg(doing_, count(page), count(pages_));
}
