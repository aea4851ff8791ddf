#pragma once
#include "platform/progress.h"
#include "reports/frame/report_output.h"

class QPrinter;
class QWidget;

// Finished pages on a printer.
namespace reportPrinter {

// Shows the printer dialog and prints what is chosen there: printer, copies, range of pages. Without a
// printer, and when printing fails, a box says so. False: nothing was printed.
bool printWithDialog(const ReportPages& pages, reportOutput::Rendering rendering, QWidget* parent,
                     Progress& progress = Progress::none());
// Prints at once on the printer that was chosen last, or the desktop's own. Boxes as above.
bool printAtOnce(const ReportPages& pages, reportOutput::Rendering rendering,
                 Progress& progress = Progress::none());

// Gives the page the paper that the printer holds; without a printer it stays as it is.
void takePaper(PageSetup& page);
// Gives the printer the paper of the pages, unless they are on its own, to its edges.
void setUpPaper(QPrinter& printer, const ReportPages& pages);
// Sends the pages of the printer's range. The text of the failure; empty: sent.
QString sendPages(QPrinter& printer, const ReportPages& pages, reportOutput::Rendering rendering,
                  Progress& progress = Progress::none());

}  // namespace reportPrinter
