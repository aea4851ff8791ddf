#include "reports/frame/export_file.h"

#include "foundation/session.h"
#include "foundation/shared_routines.h"
#include "platform/parsing.h"
#include "platform/ui/boxes.h"
#include "platform/ui/file_dialogs.h"
#include "reports/frame/report_job.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QWidget>

const FileKind FileKind::richText{"Rich Text Format (*.rtf)", "rtf",
                                  [](const ReportJob& job, Progress& progress) {
                                      return reportOutput::rtf(job.pages(), job.rendering(), progress);
                                  }};
const FileKind FileKind::plainText{"ASCII Text Format (*.txt)", "txt",
                                   [](const ReportJob& job, Progress& progress) {
                                       return reportOutput::plainText(job.pages(), progress).toUtf8();
                                   }};
const FileKind FileKind::pdf{"PDF (*.pdf)", "pdf", [](const ReportJob& job, Progress& progress) {
                                 return reportOutput::pdf(job.pages(), job.rendering(), progress);
                             }};
const FileKind FileKind::spreadsheet{"Spreadsheet (*.xlsx)", "xlsx",
                                     [](const ReportJob& job, Progress& progress) {
                                         return reportOutput::spreadsheet(job.pages(), progress);
                                     }};

bool mayWrite(const QString& path, const QString& title) {
    return !QFileInfo::exists(path) ||
           askYes(question(title, path + " already exists. Write over it?", BoxAnswer::No));
}

// The dialog has asked about the name that was typed, not about the one with the ending.
QString withEnding(const QString& path, const QString& title, const FileKind& kind) {
    if (path.isEmpty() || !QFileInfo(path).suffix().isEmpty() || QFileInfo::exists(path)) return path;
    const QString whole = path + "." + kind.suffix;
    return mayWrite(whole, title) ? whole : QString();
}

QString askFileToWrite(QWidget* parent, const QString& title, const QString& suggested,
                       const FileKind& kind) {
    return withEnding(desk::saveFile(parent, title, suggested, kind.filter), title, kind);
}

QString fileName(const QString& text) {
    static const QRegularExpression forbidden(R"([\x00-\x1f/\\:*?"<>|])");
    return QString(text).replace(forbidden, "_");
}

// Behind the last point of a number, as in "Receipts 03.2026", stands no ending.
static qsizetype endingOf(const QString& path) {
    static const QRegularExpression ending("\\.[A-Za-z]+$");
    const qsizetype at = path.indexOf(ending);
    return at < 0 ? path.size() : at;
}

QString fileOfDocument(const QString& chosen, const QString& number, const FileKind& kind) {
    const qsizetype end = endingOf(chosen);
    const QString ending = end < chosen.size() ? chosen.mid(end) : QString(".") + kind.suffix;
    return chosen.left(end) + '-' + fileName(number) + ending;
}

Box notSaved(const QString& path, const QString& failure) {
    return exclamation("Not Saved!", "The file could not be saved: " + path + "\n" + failure);
}

bool writeOrTell(const QString& path, const QByteArray& content) {
    const QString failure = reportOutput::writeFile(path, content);
    if (failure.isEmpty()) return true;
    showBox(notSaved(path, failure));
    return false;
}

Box noExportFile() { return exclamation("No File!", "Please Specify a Valid Filename and Location!"); }

const FileKind& exportKind(ReportTarget target) {
    return target == ReportTarget::RichText ? FileKind::richText : FileKind::plainText;
}

bool isExport(ReportTarget target) {
    return target == ReportTarget::RichText || target == ReportTarget::PlainText;
}

bool readyToExport(QWidget* parent, ReportTarget target, const Box& refusal,
                   const std::optional<Box>& badTextFile) {
    if (!isExport(target)) return true;
    QString& file = session().ExportFileName;
    file = askFileToWrite(parent, "Export", file, exportKind(target));
    if (ValidFilePath(file)) return true;
    const bool isBadText = target == ReportTarget::PlainText && !trim(file).isEmpty();
    showBox(isBadText ? badTextFile.value_or(refusal) : refusal);
    return false;
}

bool readyToExportSeveral(QWidget* parent, ReportTarget target) {
    if (!isExport(target)) return true;
    QString& file = session().ExportFileName;
    file = desk::saveFile(parent, "Export", file, exportKind(target).filter, desk::WritesOver::NotAsked);
    if (ValidFilePath(file)) return true;
    showBox(noExportFile());
    return false;
}
