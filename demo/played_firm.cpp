#include "demo/played_firm.h"

#include "demo/demo_firm.h"
#include "foundation/session.h"
#include "foundation/store_place.h"

#include <stdexcept>

static void clear(const QDir& folder) {
    if (!folder.mkpath("."))
        throw std::runtime_error("cannot make the folder " + folder.path().toStdString());
    const QStringList left = folder.entryList({"*.png", QString(storeFileName) + "*"}, QDir::Files);
    for (const QString& file : left) QFile::remove(folder.filePath(file));
}

void freshDemoFirm(const QDir& folder) {
    clear(folder);
    setProgramFolder(folder.absolutePath());
    makeDemoStore(storePlace());
}
