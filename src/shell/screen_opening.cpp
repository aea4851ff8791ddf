#include "shell/screen_opening.h"

#include "foundation/comes_later.h"
#include "foundation/session.h"
#include "foundation/setting_files.h"
#include "platform/ui/boxes.h"
#include "platform/ui/file_dialogs.h"
#include "platform/ui/reminder.h"

#include <QFileInfo>

namespace {

constexpr const char* supportFile = "Support.ini";

QString supportAddress() { return SettingLine(supportFile).value_or(QString()).left(999).trimmed(); }

void openOrTell(const QString& fileOrUrl, const QString& name) {
    if (!desk::openWithDesktop(fileOrUrl))
        showBox(exclamation("Zevrin!", QString("Nothing on this computer opens %1.").arg(name)));
}

}  // namespace

void openChosenScreen(const QString& screen, const ScreenArguments& arguments, const QString& name) {
    if (ScreenRegistry::instance().knows(screen))
        ScreenRegistry::instance().open(screen, arguments);
    else
        showBox(notInThisVersion(name));
}

void openIfKnown(const QString& screen) {
    if (ScreenRegistry::instance().knows(screen)) ScreenRegistry::instance().open(screen);
}

void remindOfReorder() {
    const ScreenRegistry& screens = ScreenRegistry::instance();
    if (screens.knows("frmReorder") && screens.openScreens().isEmpty())
        ScreenRegistry::instance().open("frmReorder", {reminderKind, {}, {}});
}

void openProgramFile(const QString& fileName) {
    const QString path = programFolder().filePath(fileName);
    if (QFileInfo::exists(path))
        openOrTell(path, fileName);
    else
        showBox(exclamation("Zevrin!", QString("The file %1 is not in the folder of the program, %2.")
                                           .arg(fileName, programFolder().absolutePath())));
}

void contactSupport() {
    const QString address = supportAddress();
    if (address.isEmpty())
        showBox(information("Zevrin!", QString("No support address is set. Write it into the file %1 in the "
                                               "folder of the program.")
                                           .arg(supportFile)));
    else
        openOrTell("mailto:" + address, address);
}
