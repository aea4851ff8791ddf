#pragma once
#include "platform/progress.h"

// The progress box of a piece of work, taken away however the work ends.
class ProgressScope {
  public:
    // Of work that begins the box itself, once or more often.
    explicit ProgressScope(Progress& progress) : progress_(progress) {}
    ProgressScope(Progress& progress, const QString& text, qint64 maximum) : progress_(progress) {
        progress_.begin(text, maximum);
    }
    ~ProgressScope() { progress_.end(); }
    ProgressScope(const ProgressScope&) = delete;
    ProgressScope& operator=(const ProgressScope&) = delete;

  private:
    Progress& progress_;
};
