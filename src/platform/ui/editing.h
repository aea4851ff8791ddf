#pragma once
// The edit commands on the active control, when it is a text box or an open combo box: else nothing.
namespace editing {
void cut();
void copy();
void paste();
void selectAll();  // of the field that has the focus
}  // namespace editing
