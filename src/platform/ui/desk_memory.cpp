#include "platform/ui/desk_memory.h"

#include <QSettings>
#include <QString>
#include <memory>

static std::unique_ptr<QSettings>& memory() {
    static std::unique_ptr<QSettings> opened;
    return opened;
}

void desk_memory::open(const QString& file) {
    memory() = std::make_unique<QSettings>(file, QSettings::IniFormat);
}

void desk_memory::close() { memory().reset(); }

void desk_memory::keep(const QString& what, const QVariant& value) {
    if (memory()) memory()->setValue(what, value);
}

QVariant desk_memory::kept(const QString& what) { return memory() ? memory()->value(what) : QVariant(); }
