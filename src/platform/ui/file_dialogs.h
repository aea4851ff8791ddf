#pragma once
#include <QString>
#include <functional>
#include <memory>

class QPrinter;
class QWidget;

// The doors to the desk's dialogs and helpers. Each can be answered by a test.
namespace desk {
// The path chosen, or empty.
QString openFile(QWidget* parent, const QString& title, const QString& path, const QString& filter);
enum class WritesOver { Asked, NotAsked };  // when there is such a file
// chosen: gets the one of the filters that was set.
QString saveFile(QWidget* parent, const QString& title, const QString& path, const QString& filter,
                 WritesOver asked = WritesOver::Asked, QString* chosen = nullptr);
// A line of text; empty: none was given.
QString askText(QWidget* parent, const QString& title, const QString& prompt);
// Opens a file or an address with the desktop; false when the desktop has nothing for it.
bool openWithDesktop(const QString& fileOrUrl);
// The printer dialog; false when there is no printer (a clear box was shown) or the user cancelled.
bool setUpPrinter(QWidget* parent);
// The printer chosen in that dialog, else the desktop's own; null: there is none on this machine.
std::unique_ptr<QPrinter> printer();

struct Doors {
    std::function<QString(const QString& title)> openFile = {};
    std::function<QString(const QString& title)> saveFile = {};
    std::function<QString(const QString& prompt)> askText = {};
    std::function<bool(const QString& fileOrUrl)> openWithDesktop = {};
    std::function<bool()> setUpPrinter = {};
    std::function<std::unique_ptr<QPrinter>()> printer = {};
};
void setDoors(const Doors& doors);
}  // namespace desk
