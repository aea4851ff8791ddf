#pragma once
#include "platform/progress.h"
#include "reports/frame/report_pages.h"

#include <QByteArray>

class QPainter;

// What is made of finished pages. Figures are the same in all outputs, because all come from the same pages.
namespace reportOutput {

// Paints one page. The painter's unit is a twip, its origin the corner of the paper. A text that is wider
// than its control is clipped at the control; a figure is drawn narrower, or as number signs.
void paintPage(QPainter& painter, const ReportPages& pages, std::size_t page,
               Rendering rendering = Rendering::Full);

// The pages as a PDF. This and what follows tells its progress from page to page.
QByteArray pdf(const ReportPages& pages, Rendering rendering = Rendering::Full,
               Progress& progress = Progress::none());

// The pages as plain text in a fixed pitch: columns stand under each other, a form feed stands between pages.
// A figure is always whole; where it has no room, what follows it in its line moves to the right.
QString plainText(const ReportPages& pages, Progress& progress = Progress::none());

// The pages as rich text for a word processor: a paragraph with tab stops for each line, so that columns and
// pages stay as they are and the text can be edited. A text that is wider than its control is cut as in plain
// text.
QByteArray rtf(const ReportPages& pages, Rendering rendering = Rendering::Full,
               Progress& progress = Progress::none());

// The report as a spreadsheet: its columns under their heads, a row for each of its lines, the groups as
// levels of its outline, figures and dates as such in the masks of the pages. Throws std::runtime_error, with
// words for a person, where it cannot be made.
QByteArray spreadsheet(const ReportPages& pages, Progress& progress = Progress::none());

// Writes a file whole or not at all: an older one stays as it is when this fails. The text of the failure,
// with what a person can do about it; empty: written.
QString writeFile(const QString& path, const QByteArray& content);

}  // namespace reportOutput
