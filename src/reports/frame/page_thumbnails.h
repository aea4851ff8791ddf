#pragma once
#include "reports/frame/report_job.h"

#include <QAbstractListModel>
#include <QCache>
#include <QPixmap>

// Small pictures of the pages of a report, made when a list asks for them.
class PageThumbnails : public QAbstractListModel {
    Q_OBJECT
  public:
    explicit PageThumbnails(const ReportJob& job, qreal devicePixelRatio = 1);

    void pagesAdded();
    void pagesChanged();
    QSize pictureSize() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    int picturesMade() const { return made_; }

  private:
    QPixmap picture(int page) const;

    const ReportJob& job_;
    qreal devicePixelRatio_;
    int rows_ = 0;
    mutable QCache<int, QPixmap> pictures_;
    mutable int made_ = 0;
};
