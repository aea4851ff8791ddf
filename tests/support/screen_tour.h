#pragma once
#include <QString>
#include <functional>

class QWidget;

// Goes through every screen of the program as a person who wants to see each: the windows of the login, the
// main window and its panel, every screen that is registered by name, the pickers and the line popups. The
// program has been started over a firm that has a supplier, a customer, a priced item and a document that
// waits for the end of day, and where nobody has logged in yet. Boxes on the way are answered; nothing is
// saved. What does not come up is a std::runtime_error.
using VisitScreen = std::function<void(const QString& name, QWidget* screen)>;
void tourScreens(const QString& user, const QString& password, const VisitScreen& visit);

// Opens a screen that is registered by name, and closes what is open.
QWidget* openRegistered(const QString& name);
void closeOpenScreens();
