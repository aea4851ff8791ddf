#pragma once
class QWidget;

// The edit commands on the active control, when it is a text box or an open combo box: else nothing.
namespace editing {
void cut();
void copy();
void paste();
void selectAll();  // the told SelectActiveText
// The text box that has the focus, or null.
QWidget* activeTextControl();
}  // namespace editing
