#pragma once
#include "reports/frame/page_search.h"

#include <QAbstractScrollArea>
#include <QCache>
#include <QPaintEvent>
#include <QPainter>
#include <QPixmap>

// The pages of a report on the screen, one under the other or one at a time. Paints what can be seen, and
// keeps the pages that it painted last.
class PageView : public QAbstractScrollArea {
    Q_OBJECT
  public:
    enum Fit { NoFit, FitWidth, FitPage };

    PageView(const ReportJob& job, const PageSearch& search);

    // More pages, or other contents of theirs.
    void pagesAdded();
    void pagesChanged();

    int page() const;  // that is looked at, from 0
    void goToPage(int page);
    bool isContinuous() const { return isContinuous_; }
    void setContinuous(bool isContinuous);

    // In percent, 10 to 800. Changing it ends a fit.
    int zoom() const { return zoom_; }
    void setZoom(int percent);
    void zoomIn();
    void zoomOut();
    Fit fit() const { return fit_; }
    void setFit(Fit fit);

    // Marks this hit of the search before the others, and scrolls to it; -1: none.
    void showHit(qsizetype hit);

  signals:
    void pageChanged(int page);
    void zoomChanged();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

  private:
    double pixelsPerTwip() const;
    QSize pageSize() const;
    int pageStep() const;           // from the top of a page to that of the next
    int topOf(int page) const;      // within the document
    QRect placeOf(int page) const;  // within the viewport
    void applyFit();
    void applyZoom(int percent);
    void updateScrollBars();
    void tellPage();
    bool turnPage(int key);
    void paintPage(QPainter& painter, int page, const QRect& place);
    void paintHits(QPainter& painter, int page, const QRect& place);
    QPixmap rendered(int page);
    void paintPaper(QPainter& painter, int page) const;

    const ReportJob& job_;
    const PageSearch& search_;
    QCache<int, QPixmap> cache_;
    bool isContinuous_ = true;
    int zoom_ = 100;
    Fit fit_ = FitWidth;
    int single_ = 0;  // the page that is shown alone
    int told_ = -1;
    qsizetype hit_ = -1;
};
