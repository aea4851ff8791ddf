#include "reports/frame/report_start.h"

#include "foundation/session.h"
#include "foundation/shared_routines.h"
#include "platform/parsing.h"
#include "platform/progress_scope.h"
#include "platform/ui/boxes.h"
#include "platform/ui/frmStatus.h"
#include "platform/ui/screen_registry.h"
#include "reports/frame/escape_watch.h"
#include "reports/frame/export_file.h"
#include "reports/frame/report_preview.h"
#include "reports/frame/report_printer.h"

namespace {

reportOutput::Rendering rendering() {
    return session().ReportPrinterKind == "D" ? reportOutput::Rendering::DotMatrix
                                              : reportOutput::Rendering::Full;
}

// The rules of one run at its end and its close, with the values that it was started with.
class RunRules {
  public:
    RunRules(ReportTarget target, const DocumentTagging* tagging)
        : target_(target),
          tagging_(tagging),
          fromEntry_(session().ReportFromEntry),
          exportFile_(trim(session().ExportFileName)) {}

    ReportTarget target() const { return target_; }
    const QString& exportFile() const { return exportFile_; }

    // Reads the document's number off the paper, whenever its heading is made.
    void readNumber(ReportEvents& events) {
        if (!tagging_) return;
        FormatEvent& heading = events[on(SectionKind::PageHeader)];
        heading = [this, fill = heading](const ReportSource& row, SectionFields& fields) {
            if (fill) fill(row, fields);
            number_ = trim(fields.text("txtNumber"));
        };
    }

    // ReportEnd: a paper for an entry screen is tagged as soon as its pages are made.
    void end() const {
        if (tagging_ && fromEntry_) tagPrinted();
    }

    // QueryClose: what went to the printer is tagged without a question.
    void queryClose() const {
        if (!tagging_) return;
        if (target_ == ReportTarget::Printer) return tagPrinted();
        if (fromEntry_) return;
        if (askYes(question("Printed?", tagging_->question)))
            tagPrinted();
        else
            setPrinted(false);
    }

  private:
    void tagPrinted() const {
        setPrinted(true);
        for (const DocumentTagging::Record& record : tagging_->records)
            if (record.isLocked) setFlag(record, "RecordLock", true);
    }

    void setPrinted(bool printed) const {
        for (const DocumentTagging::Record& record : tagging_->records) setFlag(record, "Printed", printed);
    }

    void setFlag(const DocumentTagging::Record& record, const char* flag, bool value) const {
        SetFlagField(StoreConnection(), record.table, record.key, number_, flag, value);
    }

    ReportTarget target_;
    const DocumentTagging* tagging_;
    bool fromEntry_;
    QString exportFile_;
    QString number_;
};

using Rules = std::shared_ptr<RunRules>;

std::unique_ptr<ReportJob> jobOf(ReportJobParts parts, RunRules& rules) {
    rules.readNumber(parts.events);
    return std::make_unique<ReportJob>(std::move(parts), rendering());
}

constexpr const char* escEnds = "\nEsc ends it, and nothing is printed.";

// False: a person broke it off.
bool layOut(ReportJob& job) {
    frmStatus status;
    const ProgressScope scope(status, QString("Please Wait While System is Making the Pages...") + escEnds,
                              job.rowCount());
    EscapeWatch escape;
    while (job.layOutPage()) {
        if (escape.isPressed()) return false;
        if (const QString progress = job.progress(); !progress.isEmpty()) status.setText(progress + escEnds);
        status.setValue(job.rowsTaken());
    }
    return true;
}

// The report has ended before its first line: nothing of it prints.
bool printsNothing(ReportJob& job) {
    if (job.pages().pages.empty()) job.layOutPage();
    return job.pages().pages.empty();
}

ReportPreview* showPreview(std::unique_ptr<ReportJob> job, const PreviewHooks& hooks) {
    auto* preview = new ReportPreview(std::move(job), hooks);
    ScreenRegistry::instance().show(preview);
    return preview;
}

ReportPreview* preview(ReportJobParts parts, const Rules& rules) {
    auto job = jobOf(std::move(parts), *rules);
    if (printsNothing(*job)) return nullptr;
    return showPreview(std::move(job),
                       {[rules](ReportPreview&) { rules->end(); }, [rules] { rules->queryClose(); }});
}

bool print(ReportJobParts parts, RunRules& rules) {
    const auto job = jobOf(std::move(parts), rules);
    if (printsNothing(*job)) return true;
    if (!layOut(*job)) return false;
    frmStatus status;
    if (!reportPrinter::printAtOnce(job->pages(), job->rendering(), status)) return false;
    rules.queryClose();
    return true;
}

bool writeExport(const ReportJob& job, const RunRules& rules) {
    if (rules.exportFile().isEmpty()) {
        showBox(exclamation("Error!", "Cannot Export File! Please specify a Filename and Location first..."));
        return false;
    }
    frmStatus status;
    return writeOrTell(rules.exportFile(), exportKind(rules.target()).content(job, status));
}

bool exportToFile(ReportJobParts parts, const Rules& rules) {
    auto job = jobOf(std::move(parts), *rules);
    if (printsNothing(*job)) return true;
    if (!layOut(*job)) return false;
    if (!writeExport(*job, *rules)) {
        showPreview(std::move(job), {{}, [rules] { rules->queryClose(); }});
        return false;
    }
    rules->queryClose();
    showBox(information("Thank You!", "File is saved at : " + rules->exportFile()));
    return true;
}

// Something is to be printed; else a box says so.
bool hasRecords(const std::optional<ReportJobParts>& report) {
    if (!report) showBox(information("Nothing to Print!", "No Records to Print..."));
    return report.has_value();
}

}  // namespace

ReportPreview* previewFromEntry(std::optional<ReportJobParts> report, const DocumentTagging* tagging) {
    if (!hasRecords(report)) return nullptr;
    session().ReportFromEntry = true;
    session().ReportDirectPrint = false;
    return preview(std::move(*report), std::make_shared<RunRules>(ReportTarget::Preview, tagging));
}

bool runFromPrintScreen(std::optional<ReportJobParts> report, ReportTarget target,
                        const DocumentTagging* tagging) {
    if (!hasRecords(report)) return true;
    session().ReportFromEntry = false;
    session().ReportDirectPrint = target == ReportTarget::Printer;
    const auto rules = std::make_shared<RunRules>(target, tagging);
    switch (target) {
        case ReportTarget::Preview:
            preview(std::move(*report), rules);
            return true;
        case ReportTarget::Printer:
            return print(std::move(*report), *rules);
        case ReportTarget::RichText:
        case ReportTarget::PlainText:
            return exportToFile(std::move(*report), rules);
    }
    return true;
}
