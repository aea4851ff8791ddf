#include "shell/window_list.h"

#include "shell/child_area.h"

#include <QActionGroup>
#include <QMenu>

namespace {

QString entry(int number, const QString& title) {
    return QString("&%1 %2").arg(number).arg(QString(title).replace('&', "&&"));
}

void addChild(QMenu* menu, QActionGroup* list, ChildArea* area, ChildScreen* screen, int number) {
    QAction* action = menu->addAction(entry(number, screen->windowTitle()));
    action->setObjectName(QString("mnuWindowList_%1").arg(number));
    action->setCheckable(true);
    action->setChecked(screen == area->activeChild());
    list->addAction(action);
    QObject::connect(action, &QAction::triggered, screen, [area, screen] { area->bringForward(screen); });
}

void rebuild(QMenu* menu, QActionGroup* list, ChildArea* area) {
    qDeleteAll(list->actions());
    const QList<ChildScreen*> screens = area->children();
    if (screens.isEmpty()) return;
    list->addAction(menu->addSeparator());
    int number = 0;
    for (ChildScreen* screen : screens) addChild(menu, list, area, screen, ++number);
}

}  // namespace

void listChildrenIn(QMenu* menu, ChildArea* area) {
    auto* list = new QActionGroup(menu);
    QObject::connect(menu, &QMenu::aboutToShow, area, [=] { rebuild(menu, list, area); });
}
