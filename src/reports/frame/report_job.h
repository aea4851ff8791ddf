#pragma once
#include "reports/frame/report_output.h"
#include "reports/frame/report_run.h"

// A report in progress and all that it stands on: its layout, its rows and its events. A layout without a
// paper of its own gets the one that the printer holds now.
class ReportJob {
  public:
    // Rendered in this way, unless the layout has one of its own.
    ReportJob(ReportJobParts parts, reportOutput::Rendering rendering = reportOutput::Rendering::Full);
    ReportJob(const ReportJob&) = delete;
    ReportJob& operator=(const ReportJob&) = delete;

    const ReportLayout& layout() const { return layout_; }
    reportOutput::Rendering rendering() const { return rendering_; }
    const ReportPages& pages() const { return run_.pages(); }
    bool layOutPage() { return run_.layOutPage(); }
    bool isComplete() const { return run_.isComplete(); }
    qsizetype rowCount() const { return rows_->rowCount(); }
    qsizetype rowsTaken() const { return run_.rowsTaken(); }
    // "System is Processing Stock Card... 120 of 4,000"; empty for a report that has no such words.
    QString progress() const;
    // The pages that can be looked at: while the report is not complete, the last one is still being filled.
    int shownPages() const {
        const int count = static_cast<int>(pages().pages.size());
        return isComplete() ? count : std::max(0, count - 1);
    }

  private:
    ReportLayout layout_;
    std::unique_ptr<ReportSource> rows_;
    QString processing_;
    ReportRun run_;
    reportOutput::Rendering rendering_;
};
