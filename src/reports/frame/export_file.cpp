#include "reports/frame/export_file.h"

#include "foundation/session.h"
#include "foundation/shared_routines.h"
#include "platform/ui/boxes.h"
#include "platform/ui/file_dialogs.h"
#include "reports/frame/report_job.h"

#include <QFileInfo>

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

QString askFileToWrite(QWidget* parent, const QString& title, const QString& suggested,
                       const FileKind& kind) {
    const QString path = desk::saveFile(parent, title, suggested, kind.filter);
    // The dialog has asked about the name that was typed, not about the one with the ending.
    if (path.isEmpty() || !QFileInfo(path).suffix().isEmpty() || QFileInfo::exists(path)) return path;
    const QString whole = path + "." + kind.suffix;
    const bool keepsOld = QFileInfo::exists(whole) &&
                          !askYes(question(title, whole + " already exists. Write over it?", BoxAnswer::No));
    return keepsOld ? QString() : whole;
}

bool writeOrTell(const QString& path, const QByteArray& content) {
    const QString failure = reportOutput::writeFile(path, content);
    if (failure.isEmpty()) return true;
    showBox(exclamation("Not Saved!", "The file could not be saved: " + path + "\n" + failure));
    return false;
}

Box noExportFile() { return exclamation("No File!", "Please Specify a Valid Filename and Location!"); }

const FileKind& exportKind(ReportTarget target) {
    return target == ReportTarget::RichText ? FileKind::richText : FileKind::plainText;
}

bool readyToExport(QWidget* parent, ReportTarget target, const Box& refusal) {
    if (target == ReportTarget::Preview || target == ReportTarget::Printer) return true;
    QString& file = session().ExportFileName;
    file = askFileToWrite(parent, "Export", file, exportKind(target));
    if (ValidFilePath(file)) return true;
    showBox(refusal);
    return false;
}
