#pragma once
#include "reports/frame/report_job.h"

// Where a text stands on the pages, regardless of case. Grows with the pages.
class PageSearch {
  public:
    struct Hit {
        int page = 0;
        std::size_t item = 0;
        int from = 0;  // in the text of the item
    };

    // Looks for another text; empty: for nothing.
    void setText(const QString& text);
    const QString& text() const { return text_; }
    // Searches the pages up to this number that were not searched yet.
    void searchTo(const ReportPages& pages, int count);
    void searchAnew() { setText(QString(text_)); }

    const std::vector<Hit>& hits() const { return hits_; }
    // The hits on a page, as places in hits().
    std::pair<std::size_t, std::size_t> hitsOn(int page) const;
    // The first hit on this page or behind it; -1: there is none.
    qsizetype firstFrom(int page) const;
    // The place on its page, in twips.
    QRect place(const Hit& hit, const ReportJob& job) const;

  private:
    QString text_;
    std::vector<Hit> hits_;
    int searched_ = 0;
};
