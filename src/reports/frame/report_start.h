#pragma once
#include "reports/frame/report_events.h"

#include <optional>

class ReportPreview;

// Starts reports, and does what belongs to their end and to their close. A run keeps the values
// that it was started with (target, ReportFromEntry, ExportFileName): whatever is started
// while its preview stands open, it ends and asks as its own start was.

enum class ReportTarget { Preview, Printer, RichText, PlainText };

// How the paper of a document is tagged as printed: Printed and RecordLock of its records. Its number is what
// the paper shows in its field txtNumber, trimmed.
struct DocumentTagging {
    struct Record {
        const char* table;
        const char* key;
        bool isLocked = true;  // gets RecordLock, too
    };
    QList<Record> records;  // in this order
    const char* question;   // under "Printed?", when a paper from a print screen closes
};

// Shows a report as a preview for an entry screen, a journal or a list. A document is tagged as soon as its
// pages are made, without a question. Null when there is nothing to print: a box has said so, unless the
// report ended itself before its first line.
ReportPreview* previewFromEntry(std::optional<ReportJobParts> report,
                                const DocumentTagging* tagging = nullptr);

// Runs a report for a print screen:
// - Preview opens a window, which asks whether a document is to be tagged when it closes.
// - Printer sends the pages at once; a document that has been sent is tagged without a question.
// - RichText and PlainText write ExportFileName, ask as a preview does, and tell where the file is. What
// could
//   not be written stays open as a preview.
// False when the output failed or was broken off by Esc: a walk over several documents ends there. Nothing to
// print is no failure.
bool runFromPrintScreen(std::optional<ReportJobParts> report, ReportTarget target,
                        const DocumentTagging* tagging = nullptr);
