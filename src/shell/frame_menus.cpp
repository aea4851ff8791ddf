#include "shell/frame_menus.h"

#include "platform/ui/icons.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

namespace {

bool isSeparator(const MenuItem& row) { return QString(row.caption) == "-"; }

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
    tools->widgetForAction(tool)->setObjectName(tool->objectName());
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

void FrameMenus::showRecordLock() {
    item("mnuAdminItem_1")->setVisible(true);
    item("mnuAdminItem_2")->setVisible(true);
    item("mnuAdminItem_2")->setText(recordLockCaption);
}
