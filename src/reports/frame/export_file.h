#pragma once
#include "platform/box.h"
#include "reports/frame/report_start.h"

#include <QString>

class Progress;
class QWidget;
class ReportJob;

// A kind of file that pages are written to.
struct FileKind {
    const char* filter;  // of the dialog
    const char* suffix;
    QByteArray (*content)(const ReportJob& job, Progress& progress);
    static const FileKind richText, plainText, pdf;
};

// Of the targets RichText and PlainText.
const FileKind& exportKind(ReportTarget target);

// Asks for the file to write; empty: none was chosen. A name without an ending gets the kind's, and is asked
// about once more when such a file is there already.
QString askFileToWrite(QWidget* parent, const QString& title, const QString& suggested, const FileKind& kind);

// Writes the file whole or not at all; a box says when it cannot be written. False: not written.
bool writeOrTell(const QString& path, const QByteArray& content);

// "Please Specify a Valid Filename and Location!"
Box noExportFile();

// What a print screen asks before it starts a report: the file, when the report goes to one. False: no valid
// file, which a box has said. Sets ExportFileName.
bool readyToExport(QWidget* parent, ReportTarget target, const Box& refusal = noExportFile());
