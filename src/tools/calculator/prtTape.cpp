#include "tools/calculator/prtTape.h"

#include "reports/frame/text_rows.h"
#include "tools/calculator/adding_machine.h"

namespace {
ReportControl tapeLine(const QString& name, bool isBold) {
    return field(name, "", 90, 0, 3600, 240, {Typeface::TimesNewRoman, 10, isBold, Qt::AlignRight});
}

const ReportLayout& prtTape() {
    static const ReportLayout layout{
        "prtTape",
        "Tape Results",
        letterPortrait(750, 750, 3780),
        {section(SectionKind::Detail, 240, {tapeLine("txtLine", false), tapeLine("txtMinus", true)})}};
    return layout;
}

void printLine(const ReportSource& row, SectionFields& fields) {
    const QString line = row.text("Line");
    const bool minus = line.contains(u'-') || line.contains(u'–');
    fields.setText(minus ? "txtMinus" : "txtLine", line);
}
}  // namespace

std::optional<ReportJobParts> tapeReport(const Tape& tape) {
    if (tape.lines.isEmpty()) return {};
    const auto lineOf = [lines = tape.lines](qsizetype row, const QString&) {
        return lines.at(row).trimmed();
    };
    return ReportJobParts{prtTape(),
                          std::make_unique<TextRows>(tape.lines.size(), lineOf),
                          {{on(SectionKind::Detail), printLine}}};
}
