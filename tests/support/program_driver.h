#pragma once
#include "support/screen_driver.h"

#include <QPixmap>
#include <QWidget>
#include <functional>

class DataGrid;

// What a person does with the whole program: its windows, menus and screens. What does not happen in time, or
// is not there, is a std::runtime_error that says so.
namespace person {

void waitFor(const std::function<bool()>& happened, const QString& what, int milliseconds = 5000);

// A window of the program, by its name, once it is on show.
QWidget* window(const QString& name);
// The screen of this name, once it is open and has the focus.
QWidget* screen(const QString& name);
bool isOpen(const QString& screenName);

// The menu item or tool of this name ("mnuFileItem_0", "tbrMain_Save"), as a click takes it: refused when it
// is not offered.
bool isOffered(const QString& action);
void choose(const QString& action);

// Does the action, which opens a modal window of this name, and in it what a person does there.
void throughModal(const QString& name, const std::function<void(QWidget* modal)>& inModal,
                  const std::function<void()>& action);
// Presses the key until the focus has come to the field.
void walkTo(const QString& field, Qt::Key key = Qt::Key_Return);
// Goes down the grid, from its first row, to the one with this value; false when there is none.
bool walkToRow(DataGrid* grid, const QString& column, const QString& value);
// Presses the button by its own key.
void pushButton(QWidget* screen, const QString& name);

// All that is on show: the main window, or the login, and the popups over it.
QPixmap picture();

}  // namespace person
