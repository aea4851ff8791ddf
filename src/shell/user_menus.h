#pragma once
#include <QList>

class Connection;
class FrameMenus;

// The codes of the rights that the rows of the current user grant, in their order.
QList<int> userRights(Connection& store);

// Lets the current user have the menus that their rows grant, and no other. Rights take effect at login
// only. False for a user who has no row: nobody gets as far as the main window without one.
bool LoadUserMenus(FrameMenus& menus, Connection& store);
