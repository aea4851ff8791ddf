#include "tools/calculator/prtTape.h"

#include "tools/calculator/adding_machine.h"

namespace {
class TapeSource : public ReportSource {
  public:
    explicit TapeSource(const QStringList& lines) : lines_(lines) {}
    bool next() override { return ++line_ < lines_.size(); }
    qsizetype rowCount() const override { return lines_.size(); }
    void lookBack(bool looksBack) override { line_ += looksBack ? -1 : 1; }
    QString text(const QString& /*column*/) const override { return lines_.at(line_).trimmed(); }
    Currency currency(const QString& /*column*/) const override { return {}; }
    QDateTime dateTime(const QString& /*column*/) const override { return {}; }
    bool isNull(const QString& /*column*/) const override { return false; }

  private:
    QStringList lines_;
    qsizetype line_ = -1;
};

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
    return ReportJobParts{
        prtTape(), std::make_unique<TapeSource>(tape.lines), {{on(SectionKind::Detail), printLine}}};
}
