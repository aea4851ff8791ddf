#include "shell/frame_menus.h"

#include "platform/ui/icons.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

namespace {

bool isSeparator(const MenuItem& row) { return QString(row.caption) == "-"; }

// Of the tool's own command, or that of the item that it stands for; null: it needs no screen.
const char* routineOf(const ToolRow& tool) {
    if (*tool.command.routine) return tool.command.routine;
    for (const MenuTable& table : menuCatalogue())
        for (const MenuItem& row : table.rows)
            if (QString("%1_%2").arg(table.items).arg(row.index) == tool.item)
                if (const auto* command = std::get_if<RecordCommand>(&row.action)) return command->routine;
    return nullptr;
}

QString tipOf(const ToolRow& tool, const QAction* item) {
    const QString key = item ? item->shortcut().toString(QKeySequence::NativeText) : QString();
    return key.isEmpty() ? QString(tool.toolTip) : QString("%1 (%2)").arg(tool.toolTip, key);
}
}  // namespace

FrameMenus::FrameMenus(QMenuBar* bar, QToolBar* tools) : QObject(bar) {
    for (const MenuTable& table : menuCatalogue()) {
        QMenu* menu = makeMenu(bar, table);
        if (table.right) rights_.insert(table.right, menu->menuAction());
        for (const MenuItem& row : table.rows) makeItem(menu, table, row);
    }
    for (const ToolRow& row : toolCatalogue()) makeTool(tools, row);
}

QMenu* FrameMenus::makeMenu(QMenuBar* bar, const MenuTable& table) {
    QAction* opener = item(table.openedBy);
    auto* menu = new QMenu(opener ? opener->text() : table.caption, bar);
    menu->setObjectName(table.name);
    if (opener)
        opener->setMenu(menu);
    else
        bar->addMenu(menu);
    return menus_[table.name] = menu;
}

void FrameMenus::makeItem(QMenu* menu, const MenuTable& table, const MenuItem& row) {
    auto* action = new QAction(menu);
    action->setObjectName(QString("%1_%2").arg(table.items).arg(row.index));
    action->setSeparator(isSeparator(row));
    if (!isSeparator(row)) action->setText(row.caption);
    if (*row.shortcut) action->setShortcut(QKeySequence(QString(row.shortcut)));
    action->setVisible(!row.hidden);
    action->setCheckable(row.checked);
    action->setChecked(row.checked);
    menu->addAction(action);
    items_[action->objectName()] = action;
    if (row.right) rights_.insert(row.right, action);
    connect(action, &QAction::triggered, this,
            [this, &table, action] { emit chosen(actionOf(table, action->text()), action->text()); });
}

void FrameMenus::makeTool(QToolBar* tools, const ToolRow& row) {
    if (row.startsGroup) tools->addSeparator();
    QAction* tool = tools->addAction(bundledIcon(row.icon), row.toolTip);
    tool->setObjectName(QString("tbrMain_%1").arg(row.key));
    QWidget* button = tools->widgetForAction(tool);
    button->setObjectName(tool->objectName());
    if (const char* routine = routineOf(row)) commands_[button] = routine;
    tool->setToolTip(tipOf(row, item(row.item)));
    if (QAction* stands = item(row.item))
        keepWithItem(tool, stands);
    else
        connect(tool, &QAction::triggered, this, [this, &row] { emit chosen(row.command, row.toolTip); });
}

// A button does what its menu item does, and no more than that.
void FrameMenus::keepWithItem(QAction* tool, QAction* stands) {
    connect(tool, &QAction::triggered, stands, &QAction::trigger);
    connect(stands, &QAction::changed, tool, [tool, stands] { tool->setEnabled(stands->isEnabled()); });
}

void FrameMenus::showCommandsOf(const QObject* child) {
    for (auto command = commands_.cbegin(); command != commands_.cend(); ++command) {
        const QByteArray routine = QByteArray(command.value()) + "()";
        const bool has = child && child->metaObject()->indexOfMethod(routine.constData()) >= 0;
        const auto* button = qobject_cast<const QToolButton*>(command.key());
        command.key()->setEnabled(has && button->defaultAction()->isEnabled());
    }
}

void FrameMenus::showRecordLock() {
    item("mnuAdminItem_1")->setVisible(true);
    item("mnuAdminItem_2")->setVisible(true);
    item("mnuAdminItem_2")->setText(recordLockCaption);
}
