#include "reports/frame/report_job.h"

#include "platform/masks.h"
#include "reports/frame/report_printer.h"

static ReportLayout withPaper(ReportLayout layout) {
    if (layout.page.isPrinters) reportPrinter::takePaper(layout.page);
    return layout;
}

ReportJob::ReportJob(ReportJobParts parts, reportOutput::Rendering rendering)
    : layout_(withPaper(parts.layout)),
      rows_(std::move(parts.rows)),
      processing_(parts.texts.processing),
      run_(layout_, *rows_, std::move(parts.events), std::move(parts.texts)),
      rendering_(layout_.rendering.value_or(rendering)) {}

QString ReportJob::progress() const {
    if (processing_.isEmpty()) return {};
    return QString("%1 %2 of %3").arg(processing_, formatCount(rowsTaken()), formatCount(rowCount()));
}
