#pragma once
#include "platform/box.h"
#include "reports/frame/report_start.h"

#include <QString>
#include <optional>

class Progress;
class QWidget;
class ReportJob;

// A kind of file that pages are written to.
struct FileKind {
    const char* filter;  // of the dialog
    const char* suffix;
    QByteArray (*content)(const ReportJob& job, Progress& progress);
    static const FileKind richText, plainText, pdf, spreadsheet;
};

// Of the targets RichText and PlainText.
const FileKind& exportKind(ReportTarget target);

// Asks for the file to write; empty: none was chosen. A name without an ending gets the kind's, and is asked
// about once more when such a file is there already.
QString askFileToWrite(QWidget* parent, const QString& title, const QString& suggested, const FileKind& kind);

// A text as the name of a file: a character that none may hold is a low line.
QString fileName(const QString& text);
// The file of one document of several that are written at once: the chosen name, a hyphen and the document's
// number.
QString fileOfDocument(const QString& chosen, const QString& number, const FileKind& kind);

// There is no such file, or a person lets it be written over.
bool mayWrite(const QString& path, const QString& title);
// The name with the kind's ending, where it has none; empty: such a file is there and is kept.
QString withEnding(const QString& path, const QString& title, const FileKind& kind);

// "Not Saved!"
Box notSaved(const QString& path, const QString& failure);

// Writes the file whole or not at all; a box says when it cannot be written. False: not written.
bool writeOrTell(const QString& path, const QByteArray& content);

// "Please Specify a Valid Filename and Location!"
Box noExportFile();

// The report goes to a file.
bool isExport(ReportTarget target);
// What a print screen asks before it starts a report: the file, when the report goes to one. False: no valid
// file, which a box has said: that of the refusal, or, where a name was given for plain text, of its own.
// Sets ExportFileName.
bool readyToExport(QWidget* parent, ReportTarget target, const Box& refusal = noExportFile(),
                   const std::optional<Box>& badTextFile = {});
// The same for several documents, each of which goes to a file of its own: fileOfDocument.
bool readyToExportSeveral(QWidget* parent, ReportTarget target);
