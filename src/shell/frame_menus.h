#pragma once
#include "shell/menu_catalogue.h"

#include <QHash>
#include <QMultiHash>
#include <QObject>
#include <QWidget>

class QAction;
class QMenu;
class QMenuBar;
class QToolBar;

// The menus and the tool bar of the main window, made from their catalogues.
class FrameMenus : public QObject {
    Q_OBJECT
  public:
    FrameMenus(QMenuBar* bar, QToolBar* tools);

    QAction* item(const QString& name) const { return items_.value(name); }  // "mnuRecordItem_4"
    QMenu* menu(const QString& name) const { return menus_.value(name); }    // "mnuReport"
    // The menus and items that take this right; none for a code outside the catalogue.
    QList<QAction*> withRight(int code) const { return rights_.values(code); }
    QList<int> rights() const { return rights_.uniqueKeys(); }
    // Gives item 2 of Administration the caption of the record lock, and shows it with its separator.
    void showRecordLock();
    // Greys the buttons of the commands that this screen does not have; without one, of all that need one.
    void showCommandsOf(const QObject* child);

  signals:
    void chosen(const MenuAction& action, const QString& caption);

  private:
    QMenu* makeMenu(QMenuBar* bar, const MenuTable& table);
    void makeItem(QMenu* menu, const MenuTable& table, const MenuItem& row);
    void makeTool(QToolBar* tools, const ToolRow& row);
    void keepWithItem(QAction* tool, QAction* item);

    QHash<QWidget*, const char*> commands_;  // the routines of tool buttons
    QHash<QString, QAction*> items_;
    QHash<QString, QMenu*> menus_;
    QMultiHash<int, QAction*> rights_;
};
