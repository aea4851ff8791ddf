#include "reports/frame/page_view.h"

#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <array>

namespace {
constexpr int margin = 12;  // around a page
constexpr int leastZoom = 10, mostZoom = 800;
constexpr std::array zoomSteps{10, 25, 50, 75, 100, 125, 150, 200, 300, 400, 600, 800};
// Pictures of pages are kept up to this many kilobytes; a page that takes more than a quarter is painted
// anew.
constexpr int cacheSize = 96 * 1024;
}  // namespace

PageView::PageView(const ReportJob& job, const PageSearch& search) : job_(job), search_(search) {
    setObjectName("PageView");
    setAccessibleName("Pages");
    setFocusPolicy(Qt::StrongFocus);
    setFrameShape(QFrame::NoFrame);
    viewport()->setBackgroundRole(QPalette::Mid);
    cache_.setMaxCost(cacheSize);
}

// Places

double PageView::pixelsPerTwip() const { return logicalDpiX() / 1440.0 * zoom_ / 100.0; }

QSize PageView::pageSize() const { return (QSizeF(job_.pages().setup.paper()) * pixelsPerTwip()).toSize(); }

int PageView::pageStep() const { return pageSize().height() + margin; }

int PageView::topOf(int page) const { return margin + (isContinuous_ ? page * pageStep() : 0); }

QRect PageView::placeOf(int page) const {
    const QSize size = pageSize();
    const int free = viewport()->width() - size.width();
    const int left = free > 2 * margin ? free / 2 : margin - horizontalScrollBar()->value();
    return QRect(QPoint(left, topOf(page) - verticalScrollBar()->value()), size);
}

int PageView::page() const {
    if (!isContinuous_) return single_;
    // The page that the upper third of the window shows.
    const int at = verticalScrollBar()->value() + viewport()->height() / 3 - margin;
    return std::clamp(at / pageStep(), 0, std::max(0, job_.shownPages() - 1));
}

void PageView::updateScrollBars() {
    const QSize size = pageSize();
    const int pages = isContinuous_ ? std::max(1, job_.shownPages()) : 1;
    const QSize room = viewport()->size();
    verticalScrollBar()->setPageStep(room.height());
    verticalScrollBar()->setSingleStep(std::max(20, room.height() / 12));
    verticalScrollBar()->setRange(0, std::max(0, margin + pages * pageStep() - room.height()));
    horizontalScrollBar()->setPageStep(room.width());
    horizontalScrollBar()->setSingleStep(std::max(20, room.width() / 12));
    horizontalScrollBar()->setRange(0, std::max(0, size.width() + 2 * margin - room.width()));
}

void PageView::pagesAdded() {
    if (job_.shownPages() <= 1 || isContinuous_) updateScrollBars();
    viewport()->update();
    tellPage();
}

void PageView::pagesChanged() {
    cache_.clear();
    pagesAdded();
}

void PageView::tellPage() {
    if (told_ == page()) return;
    told_ = page();
    emit pageChanged(told_);
}

void PageView::goToPage(int page) {
    single_ = std::clamp(page, 0, std::max(0, job_.shownPages() - 1));
    verticalScrollBar()->setValue(isContinuous_ ? topOf(single_) - margin : 0);
    viewport()->update();
    tellPage();
}

void PageView::setContinuous(bool isContinuous) {
    const int shown = page();
    isContinuous_ = isContinuous;
    updateScrollBars();
    goToPage(shown);
}

// Zoom

void PageView::setZoom(int percent) {
    fit_ = NoFit;
    applyZoom(percent);
    emit zoomChanged();
}

void PageView::zoomIn() {
    const auto* next = std::ranges::upper_bound(zoomSteps, zoom_);
    setZoom(next == zoomSteps.end() ? mostZoom : *next);
}

void PageView::zoomOut() {
    const auto* next = std::ranges::lower_bound(zoomSteps, zoom_);
    setZoom(next == zoomSteps.begin() ? leastZoom : *std::prev(next));
}

void PageView::setFit(Fit fit) {
    fit_ = fit;
    applyFit();
    emit zoomChanged();
}

// What stood in the middle of the window stays there; the top of the first page stays the top.
void PageView::applyZoom(int percent) {
    const bool isAtTop = verticalScrollBar()->value() == 0;
    const int shown = page();
    const double step = pageStep();
    const double middle = (verticalScrollBar()->value() + viewport()->height() / 2.0 - topOf(shown)) / step;
    zoom_ = std::clamp(percent, leastZoom, mostZoom);
    cache_.clear();
    updateScrollBars();
    const int middleNow = topOf(shown) + qRound(middle * pageStep());
    verticalScrollBar()->setValue(isAtTop ? 0 : middleNow - viewport()->height() / 2);
    viewport()->update();
    tellPage();
}

void PageView::applyFit() {
    if (fit_ == NoFit) return;
    const QSizeF paper = QSizeF(job_.pages().setup.paper()) * (logicalDpiX() / 1440.0);
    // The room of a window with its scroll bar, so that the bar does not come and go.
    const int bar = verticalScrollBar()->isVisible() ? 0 : verticalScrollBar()->sizeHint().width();
    const double wide = (viewport()->width() - bar - 2 * margin) / paper.width();
    const double high = (viewport()->height() - 2 * margin) / paper.height();
    applyZoom(static_cast<int>(100 * (fit_ == FitWidth ? wide : std::min(wide, high))));
}

void PageView::resizeEvent(QResizeEvent*) {
    const int before = zoom_;
    applyFit();
    updateScrollBars();
    if (zoom_ != before) emit zoomChanged();
}

// Keys and wheel

// In single page view a key that has nothing left to scroll turns the page.
bool PageView::turnPage(int key) {
    const QScrollBar* bar = verticalScrollBar();
    const bool isDown = key == Qt::Key_PageDown || key == Qt::Key_Down || key == Qt::Key_Space;
    const bool isUp = key == Qt::Key_PageUp || key == Qt::Key_Up;
    if (isDown && bar->value() == bar->maximum() && single_ + 1 < job_.shownPages())
        goToPage(single_ + 1);
    else if (isUp && bar->value() == bar->minimum() && single_ > 0) {
        goToPage(single_ - 1);
        verticalScrollBar()->setValue(verticalScrollBar()->maximum());
    } else
        return false;
    return true;
}

void PageView::keyPressEvent(QKeyEvent* event) {
    if (!isContinuous_ && !(event->modifiers() & Qt::ControlModifier) && turnPage(event->key())) return;
    if (event->key() == Qt::Key_Space)
        verticalScrollBar()->triggerAction(QScrollBar::SliderPageStepAdd);
    else
        QAbstractScrollArea::keyPressEvent(event);
}

void PageView::wheelEvent(QWheelEvent* event) {
    const int turned = event->angleDelta().y();
    if (turned != 0 && (event->modifiers() & Qt::ControlModifier))
        turned > 0 ? zoomIn() : zoomOut();
    else if (isContinuous_ || turned == 0 || !turnPage(turned < 0 ? Qt::Key_Down : Qt::Key_Up))
        QAbstractScrollArea::wheelEvent(event);
}

void PageView::scrollContentsBy(int dx, int dy) {
    viewport()->scroll(dx, dy);
    tellPage();
}

void PageView::showHit(qsizetype hit) {
    hit_ = hit;
    viewport()->update();
    if (hit < 0) return;
    const PageSearch::Hit& found = search_.hits()[static_cast<std::size_t>(hit)];
    if (!isContinuous_ && found.page != single_) goToPage(found.page);
    const QRect place = search_.place(found, job_);
    const double scale = pixelsPerTwip();
    const QRect shown =
        QRectF(place.left() * scale, place.top() * scale, place.width() * scale, place.height() * scale)
            .toAlignedRect()
            .translated(placeOf(found.page).topLeft());
    if (viewport()->rect().contains(shown)) return;
    verticalScrollBar()->setValue(verticalScrollBar()->value() + shown.center().y() -
                                  viewport()->height() / 3);
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + shown.center().x() -
                                    viewport()->width() / 2);
}

// Painting

void PageView::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    const int pages = job_.shownPages();
    const int first =
        isContinuous_ ? std::max(0, (verticalScrollBar()->value() - margin) / pageStep()) : single_;
    for (int page = first; page < pages; ++page) {
        const QRect place = placeOf(page);
        if (place.top() > event->rect().bottom()) break;
        if (place.intersects(event->rect())) paintPage(painter, page, place);
        if (!isContinuous_) break;
    }
}

void PageView::paintPage(QPainter& painter, int page, const QRect& place) {
    const QSize pixels = place.size() * devicePixelRatioF();
    const bool isKept = qint64(pixels.width()) * pixels.height() * 4 / 1024 < cacheSize / 4;
    if (isKept) {
        painter.drawPixmap(place.topLeft(), rendered(page));
    } else {
        painter.save();
        painter.setClipRect(place, Qt::IntersectClip);
        painter.translate(place.topLeft());
        paintPaper(painter, page);
        painter.restore();
    }
    painter.setPen(palette().color(QPalette::Dark));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(place.adjusted(-1, -1, 0, 0));
    paintHits(painter, page, place);
}

void PageView::paintHits(QPainter& painter, int page, const QRect& place) {
    painter.save();
    painter.translate(place.topLeft());
    painter.scale(pixelsPerTwip(), pixelsPerTwip());
    painter.setCompositionMode(QPainter::CompositionMode_Multiply);
    const auto [from, to] = search_.hitsOn(page);
    for (std::size_t i = from; i < to; ++i) {
        const bool isCurrent = static_cast<qsizetype>(i) == hit_;
        painter.fillRect(search_.place(search_.hits()[i], job_).adjusted(-10, 0, 10, 0),
                         isCurrent ? QColor(255, 170, 60) : QColor(255, 240, 120));
    }
    painter.restore();
}

QPixmap PageView::rendered(int page) {
    if (const QPixmap* kept = cache_[page]) return *kept;
    QPixmap picture(pageSize() * devicePixelRatioF());
    picture.setDevicePixelRatio(devicePixelRatioF());
    QPainter painter(&picture);
    paintPaper(painter, page);
    painter.end();
    const int cost = std::max(1, static_cast<int>(qint64(picture.width()) * picture.height() * 4 / 1024));
    cache_.insert(page, new QPixmap(picture), cost);
    return picture;
}

// Paper is white and print is black, whatever the palette.
void PageView::paintPaper(QPainter& painter, int page) const {
    painter.fillRect(QRect(QPoint(0, 0), pageSize()), Qt::white);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform);
    painter.scale(pixelsPerTwip(), pixelsPerTwip());
    reportOutput::paintPage(painter, job_.pages(), static_cast<std::size_t>(page), job_.rendering());
}
