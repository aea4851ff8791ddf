#pragma once
#include <QString>
#include <functional>

class QWidget;

// The doors to the desk's dialogs and helpers. Each can be answered by a test.
namespace desk {
// The path chosen, or empty.
QString openFile(QWidget* parent, const QString& title, const QString& path, const QString& filter);
QString saveFile(QWidget* parent, const QString& title, const QString& path, const QString& filter);
// Opens a file or an address with the desktop; false when the desktop has nothing for it.
bool openWithDesktop(const QString& fileOrUrl);
// The printer dialog; false when there is no printer (a clear box was shown) or the user cancelled.
bool setUpPrinter(QWidget* parent);
// The printer chosen in that dialog, else the desktop's default; empty: there is none.
QString printerName();

struct Doors {
    std::function<QString(const QString& title)> openFile = {};
    std::function<QString(const QString& title)> saveFile = {};
    std::function<bool(const QString& fileOrUrl)> openWithDesktop = {};
    std::function<bool()> setUpPrinter = {};
};
void setDoors(const Doors& doors);
}  // namespace desk
