#include "platform/ui/file_dialogs.h"

#include "platform/ui/boxes.h"
#include "platform/ui/front_watch.h"

#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLabel>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QUrl>

namespace desk {

static Doors& doors() {
    static Doors current;
    return current;
}

void setDoors(const Doors& newDoors) { doors() = newDoors; }

QString openFile(QWidget* parent, const QString& title, const QString& path, const QString& filter) {
    if (doors().openFile) return doors().openFile(title);
    const FrontHold hold;
    return QFileDialog::getOpenFileName(parent, title, path, filter);
}

QString saveFile(QWidget* parent, const QString& title, const QString& path, const QString& filter,
                 WritesOver asked, QString* chosen) {
    if (doors().saveFile) return doors().saveFile(title);
    const FrontHold hold;
    const auto options =
        asked == WritesOver::Asked ? QFileDialog::Options() : QFileDialog::DontConfirmOverwrite;
    return QFileDialog::getSaveFileName(parent, title, path, filter, chosen, options);
}

QString askText(QWidget* parent, const QString& title, const QString& prompt) {
    if (doors().askText) return doors().askText(prompt);
    const FrontHold hold;
    QInputDialog dialog(parent);
    dialog.setWindowTitle(title);
    dialog.setLabelText(prompt);
    for (auto* label : dialog.findChildren<QLabel*>()) label->setTextFormat(Qt::PlainText);
    return dialog.exec() == QDialog::Accepted ? dialog.textValue() : QString();
}

static bool isAddress(const QString& text) { return text.contains("://") || text.startsWith("mailto:"); }

bool openWithDesktop(const QString& fileOrUrl) {
    if (doors().openWithDesktop) return doors().openWithDesktop(fileOrUrl);
    if (isAddress(fileOrUrl)) return QDesktopServices::openUrl(QUrl(fileOrUrl));
    return QFileInfo::exists(fileOrUrl) && QDesktopServices::openUrl(QUrl::fromLocalFile(fileOrUrl));
}

// Kept for the session: what is printed next goes to the printer that was set up last.
static QString& chosenPrinter() {
    static QString name;
    return name;
}

static std::unique_ptr<QPrinter> presentPrinter() {
    if (QPrinterInfo::availablePrinterNames().isEmpty()) return nullptr;
    const QString name = chosenPrinter().isEmpty() ? QPrinterInfo::defaultPrinterName() : chosenPrinter();
    return std::make_unique<QPrinter>(QPrinterInfo::printerInfo(name), QPrinter::HighResolution);
}

std::unique_ptr<QPrinter> printer() { return doors().printer ? doors().printer() : presentPrinter(); }

static bool runPrinterDialog(QPrinter& printer, QWidget* parent) {
    const FrontHold hold;
    QPrintDialog dialog(&printer, parent);
    dialog.setObjectName("comMain");
    dialog.setWindowTitle("Printer Setup");
    if (dialog.exec() != QDialog::Accepted) return false;
    chosenPrinter() = printer.printerName();
    return true;
}

bool setUpPrinter(QWidget* parent) {
    if (doors().setUpPrinter) return doors().setUpPrinter();
    if (const auto present = printer()) return runPrinterDialog(*present, parent);
    showBox(information("Printer Setup",
                        "There is no printer on this machine. Add one in the settings of the desktop, then "
                        "choose Printer Setup again."));
    return false;
}

}  // namespace desk
