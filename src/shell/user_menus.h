#pragma once
class Connection;
class FrameMenus;

// Lets the current user have the menus that their rows grant, and no other. Rights take effect at login
// only. False for a user who has no row: nobody gets as far as the main window without one.
bool LoadUserMenus(FrameMenus& menus, Connection& store);
