#include "reports/frame/report_printer.h"

#include "platform/print/print_queue.h"
#include "platform/ui/boxes.h"
#include "platform/ui/file_dialogs.h"
#include "platform/ui/front_watch.h"
#include "reports/frame/page_progress.h"

#include <QAbstractPrintDialog>
#include <QPageLayout>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

namespace {
// Null: there is none, which a box has said.
std::unique_ptr<QPrinter> printerFor(const ReportPages& pages) {
    auto printer = desk::printer();
    if (printer)
        reportPrinter::setUpPaper(*printer, pages);
    else
        showBox(exclamation("No Printer!",
                            "There is no printer on this machine. Add one in the settings of the desktop, "
                            "then print again."));
    return printer;
}

const QString& tookNothing() {
    static const QString text = "The printer took no pages. Look at the printer, then print again.";
    return text;
}

// Sends to a queue that has to take them: the number of its newest job tells.
QString sendToQueue(QPrinter& printer, const ReportPages& pages, reportOutput::Rendering rendering,
                    Progress& progress) {
    const bool hasQueue = printer.outputFormat() == QPrinter::NativeFormat;
    const int before = hasQueue ? printQueue::newestJob(printer.printerName()) : 0;
    const QString failure = reportPrinter::sendPages(printer, pages, rendering, progress);
    if (!failure.isEmpty() || !hasQueue) return failure;
    return printQueue::newestJob(printer.printerName()) > before ? QString() : tookNothing();
}

bool sendOrTell(QPrinter& printer, const ReportPages& pages, reportOutput::Rendering rendering,
                Progress& progress) {
    const QString failure = sendToQueue(printer, pages, rendering, progress);
    if (failure.isEmpty()) return true;
    showBox(exclamation("Not Printed!", failure));
    return false;
}

struct PageRange {
    int first, last;  // from 0
};

PageRange chosenRange(const QPrinter& printer, const ReportPages& pages) {
    const int last = static_cast<int>(pages.pages.size()) - 1;
    if (printer.printRange() != QPrinter::PageRange || printer.fromPage() == 0) return {0, last};
    return {std::clamp(printer.fromPage() - 1, 0, last), std::clamp(printer.toPage() - 1, 0, last)};
}

void paint(QPainter& painter, const QPrinter& printer, const ReportPages& pages, int page,
           reportOutput::Rendering rendering) {
    painter.save();
    painter.scale(printer.logicalDpiX() / 1440.0, printer.logicalDpiY() / 1440.0);
    reportOutput::paintPage(painter, pages, static_cast<std::size_t>(page), rendering);
    painter.restore();
}

QPageLayout pageLayoutOf(const QSize& paper) {
    const bool isLandscape = paper.width() > paper.height();
    const QSizeF upright = QSizeF(isLandscape ? paper.transposed() : paper) / 20.0;
    return {QPageSize(upright, QPageSize::Point),
            isLandscape ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF(), QPageLayout::Point};
}
}  // namespace

namespace reportPrinter {

void takePaper(PageSetup& page) {
    const auto printer = desk::printer();
    if (!printer) return;
    const QSizeF paper = printer->pageLayout().fullRect(QPageLayout::Point).size() * 20;
    page.paperWidth = qRound(paper.width());
    page.paperHeight = qRound(paper.height());
}

void setUpPaper(QPrinter& printer, const ReportPages& pages) {
    if (!pages.setup.isPrinters) printer.setPageLayout(pageLayoutOf(pages.setup.paper()));
    printer.setFullPage(true);
    printer.setDocName(pages.caption);
}

QString sendPages(QPrinter& printer, const ReportPages& pages, reportOutput::Rendering rendering,
                  Progress& progress) {
    const auto [first, last] = chosenRange(printer, pages);
    const bool isReverse = printer.pageOrder() == QPrinter::LastPageFirst;
    QPainter painter;
    if (last < first || !painter.begin(&printer)) return tookNothing();
    PageProgress printing(progress, "Printing", static_cast<std::size_t>(last - first + 1));
    bool isSent = true;
    for (int sent = 0; sent <= last - first && isSent; ++sent) {
        printing.setPage(static_cast<std::size_t>(sent + 1));
        if (sent > 0) isSent = printer.newPage();
        if (isSent) paint(painter, printer, pages, isReverse ? last - sent : first + sent, rendering);
    }
    if (!isSent) printer.abort();
    return painter.end() && isSent ? QString() : tookNothing();
}

bool printWithDialog(const ReportPages& pages, reportOutput::Rendering rendering, QWidget* parent,
                     Progress& progress) {
    const auto printer = printerFor(pages);
    if (!printer) return false;
    {
        const FrontHold hold;
        QPrintDialog dialog(printer.get(), parent);
        // To a file go Save as PDF and its fellows, which never leave half of one.
        dialog.setOptions(QAbstractPrintDialog::PrintPageRange | QAbstractPrintDialog::PrintCollateCopies |
                          QAbstractPrintDialog::PrintShowPageSize);
        dialog.setMinMax(1, static_cast<int>(pages.pages.size()));
        if (dialog.exec() != QDialog::Accepted) return false;
    }
    // The dialog has given the printer the paper that it holds by default.
    setUpPaper(*printer, pages);
    return sendOrTell(*printer, pages, rendering, progress);
}

bool printAtOnce(const ReportPages& pages, reportOutput::Rendering rendering, Progress& progress) {
    const auto printer = printerFor(pages);
    return printer && sendOrTell(*printer, pages, rendering, progress);
}

}  // namespace reportPrinter
