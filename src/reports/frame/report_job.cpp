#include "reports/frame/report_job.h"

#include "reports/frame/report_printer.h"

static ReportLayout withPaper(ReportLayout layout) {
    if (layout.page.isPrinters) reportPrinter::takePaper(layout.page);
    return layout;
}

ReportJob::ReportJob(ReportJobParts parts, reportOutput::Rendering rendering)
    : layout_(withPaper(parts.layout)),
      rows_(std::move(parts.rows)),
      run_(layout_, *rows_, std::move(parts.events), std::move(parts.texts)),
      rendering_(layout_.rendering.value_or(rendering)) {}
