#include "reports/frame/page_thumbnails.h"

#include <QPainter>

namespace {
constexpr int longestSide = 120;
constexpr int kept = 200;
}  // namespace

PageThumbnails::PageThumbnails(const ReportJob& job, qreal devicePixelRatio)
    : job_(job), devicePixelRatio_(devicePixelRatio), rows_(job.shownPages()), pictures_(kept) {}

void PageThumbnails::pagesAdded() {
    const int pages = job_.shownPages();
    if (pages <= rows_) return;
    beginInsertRows({}, rows_, pages - 1);
    rows_ = pages;
    endInsertRows();
}

void PageThumbnails::pagesChanged() {
    pagesAdded();
    pictures_.clear();
    if (rows_ > 0) emit dataChanged(index(0), index(rows_ - 1), {Qt::DecorationRole});
}

QSize PageThumbnails::pictureSize() const {
    return job_.pages().setup.paper().scaled(longestSide, longestSide, Qt::KeepAspectRatio);
}

int PageThumbnails::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

QVariant PageThumbnails::data(const QModelIndex& index, int role) const {
    if (role == Qt::DecorationRole) return picture(index.row());
    if (role == Qt::DisplayRole) return QString::number(index.row() + 1);
    if (role == Qt::AccessibleTextRole) return QString("Page %1").arg(index.row() + 1);
    return {};
}

QPixmap PageThumbnails::picture(int page) const {
    if (const QPixmap* made = pictures_[page]) return *made;
    QPixmap picture(pictureSize() * devicePixelRatio_);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    const double scale = double(picture.width()) / job_.pages().setup.paperWidth;
    painter.scale(scale, scale);
    reportOutput::paintPage(painter, job_.pages(), static_cast<std::size_t>(page), job_.rendering());
    painter.resetTransform();
    painter.setPen(Qt::gray);
    painter.drawRect(0, 0, picture.width() - 1, picture.height() - 1);
    painter.end();
    picture.setDevicePixelRatio(devicePixelRatio_);
    pictures_.insert(page, new QPixmap(picture));
    ++made_;
    return picture;
}
