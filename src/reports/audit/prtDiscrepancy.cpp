#include "reports/audit/prtDiscrepancy.h"

#include "books/discrepancies.h"
#include "platform/ui/boxes.h"
#include "reports/frame/list_report.h"
#include "reports/frame/text_rows.h"

#include <QStringList>

namespace {
using modDiscrepancy::DiscrepancyCheck;

QString blockOf(Connection& store, const DiscrepancyCheck& check, Progress& progress) {
    QString block = modDiscrepancy::headOf(check);
    guarded([&] { block = modDiscrepancy::findingsOf(store, check, progress); });
    return block;
}
}  // namespace

const ReportLayout& prtDiscrepancy() {
    static const ReportLayout layout{
        "prtDiscrepancy",
        "Discrepancy Report...",
        letterPortrait(750, 750, 10680),
        {section(SectionKind::PageHeader, 450,
                 {showing(Shows::RunDate, field("lblRunDate", "", 90, 90, 10500, 225))}),
         section(SectionKind::Detail, 285,
                 {growing(field("txtDiscrepancy", "Findings", 90, 30, 10500, 225))}),
         section(SectionKind::PageFooter, 360,
                 {label("lblPage", "Page:", 90, 90, 540, 225),
                  showing(Shows::PageText, field("fldPageNo", "", 630, 90, 1620, 225))})}};
    return layout;
}

std::optional<ReportJobParts> discrepancyReport(Connection& store, Progress& progress) {
    QStringList blocks;
    for (const DiscrepancyCheck* check : modDiscrepancy::discrepancyChecks())
        blocks += blockOf(store, *check, progress);
    const auto text = [all = blocks.join("\r\n\r\n")](qsizetype, const QString&) { return all; };
    return ReportJobParts{prtDiscrepancy(), std::make_unique<TextRows>(1, text), {}};
}
