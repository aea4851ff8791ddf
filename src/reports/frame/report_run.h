#pragma once
#include "reports/frame/report_events.h"
#include "reports/frame/report_pages.h"

// One run of a report: walks the rows and lays out pages, as far as it is asked to, so that the first page
// can be shown before the last row is read. Page footers are laid when all pages are known.
//
//     ReportRun run(layout, source, events);
//     while (run.layOutPage()) {}
//     const ReportPages& pages = run.pages();
class ReportRun {
  public:
    ReportRun(const ReportLayout& layout, ReportSource& rows, ReportEvents events, RunTexts texts = {});
    ~ReportRun();
    ReportRun(const ReportRun&) = delete;
    ReportRun& operator=(const ReportRun&) = delete;

    // Lays out one more page; false when the report is complete.
    bool layOutPage();
    bool isComplete() const;
    const ReportPages& pages() const;
    qsizetype rowsTaken() const;  // of the source's rows
    // The pages of a complete run, which keeps none.
    ReportPages takePages();

  private:
    class Engine;
    std::unique_ptr<Engine> engine_;
};

// A whole run at once.
ReportPages runReport(ReportJobParts& parts);
ReportPages runReport(const ReportLayout& layout, ReportSource& rows, const ReportEvents& events,
                      const RunTexts& texts = {});
