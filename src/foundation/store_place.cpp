#include "foundation/store_place.h"

#include "foundation/session.h"
#include "foundation/setting_files.h"
#include "platform/parsing.h"
#include "platform/store/place.h"

QString storePlace() {
    const QString line = trim(SettingLine("Store.ini").value_or(QString()));
    return line.isEmpty() ? programFolder().filePath(storeFileName) : line;
}

QString passwordFor(const QString& place) { return isServer(place) ? QString() : QString(storePassword); }
