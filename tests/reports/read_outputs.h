#pragma once
#include "reports/frame/report_pages.h"

#include <QStringList>
#include <functional>

// The outputs that show pages, and each page as a person reads it there.
struct Output {
    const char* name;
    std::function<QStringList(const ReportPages&)> read;
};
const std::vector<Output>& pageOutputs();
