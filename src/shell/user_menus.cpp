#include "shell/user_menus.h"

#include "foundation/session.h"
#include "platform/parsing.h"
#include "shell/frame_menus.h"

#include <QAction>

namespace {

constexpr const char* endOfDayItem = "mnuFileItem_0";
constexpr const char* cashRegisterItem = "mnuMaintenanceItem_6";

void setEnabled(const QList<QAction*>& actions, bool enabled) {
    for (QAction* action : actions) action->setEnabled(enabled);
}

void disableAll(FrameMenus& menus) {
    for (const int right : menus.rights()) setEnabled(menus.withRight(right), false);
    menus.item(cashRegisterItem)->setEnabled(false);
    menus.item(endOfDayItem)->setEnabled(false);
}

void grant(FrameMenus& menus, int right) {
    setEnabled(menus.withRight(right), true);
    if (right == recordLockRight) menus.showRecordLock();
}

}  // namespace

QList<int> userRights(Connection& store) {
    Recordset rows = store.execute({"SELECT MenuID FROM tblUserDetails WHERE UserID = ? ORDER BY MenuID",
                                    {trimRight(session().CurrentUserCode)}});
    QList<int> rights;
    for (; !rows.eof(); rows.moveNext()) rights << static_cast<int>(rows.integer("MenuID"));
    return rights;
}

bool LoadUserMenus(FrameMenus& menus, Connection& store) {
    disableAll(menus);
    const Recordset user = store.execute({"SELECT EndofDay, POSSuper FROM tblUserMaster WHERE UserCode = ?",
                                          {trimRight(session().CurrentUserCode)}});
    for (const int right : userRights(store)) grant(menus, right);
    if (user.eof()) return false;
    menus.item(endOfDayItem)->setEnabled(user.flag("EndofDay"));
    menus.item(cashRegisterItem)->setEnabled(user.flag("POSSuper"));
    return true;
}
