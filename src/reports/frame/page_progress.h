#pragma once
#include "platform/progress_scope.h"

#include <optional>

// Tells of the pages while an output is made of them: "Saving page 12 of 2,000..." A short report is done
// before anyone could read that, and tells nothing.
class PageProgress {
  public:
    // What is done: "Saving".
    PageProgress(Progress& progress, const QString& doing, std::size_t pages);
    // The page that is worked on, from 1.
    void setPage(std::size_t page);

  private:
    QString textAt(std::size_t page) const;

    Progress& progress_;
    QString doing_;
    std::size_t pages_;
    std::optional<ProgressScope> scope_;
};
