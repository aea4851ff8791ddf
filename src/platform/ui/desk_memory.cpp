#include "platform/ui/desk_memory.h"

#include "platform/ui/child_screen.h"

#include <QSettings>
#include <QString>
#include <QStringList>
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

// "Columns/frmSalesGrid.dbgMyGrid"
static QString ofList(const char* what, const QWidget* list) {
    const QWidget* screen = list->parentWidget();
    while (screen && !qobject_cast<const ChildScreen*>(screen)) screen = screen->parentWidget();
    return QString("%1/%2.%3").arg(what, screen ? screen->objectName() : "", list->objectName());
}

void desk_memory::keepWidths(const QWidget* list, const QStringList& widths) {
    keep(ofList("Columns", list), widths);
}

QStringList desk_memory::keptWidths(const QWidget* list) {
    return kept(ofList("Columns", list)).toStringList();
}

void desk_memory::keepSort(const QWidget* list, int sort) { keep(ofList("Sort", list), sort); }

int desk_memory::keptSort(const QWidget* list) { return kept(ofList("Sort", list)).toInt(); }
