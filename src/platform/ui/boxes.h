#pragma once
#include "platform/box.h"
#include "platform/outcome.h"

#include <functional>
#include <optional>

class QWidget;

// Shows a message box, as plain text, over the active window, and gives the button pressed. Esc answers
// Cancel, or No, or Ok, whichever the box has.
BoxAnswer showBox(const Box& box);
void showBoxes(const Boxes& boxes);
inline bool askYes(const Box& box) { return showBox(box) == BoxAnswer::Yes; }

// Shows a fault and puts the focus on its control, looked up by objectName below the screen.
void showFault(const Fault& fault, QWidget* screen);

// A screen's own button: runs the action, and shows an exception as a box "Error..." with its text.
// False when it threw.
bool guarded(const std::function<void()>& action, const QString& title = "Error...");

// The buttons of a box in their order, the one that Enter presses and the one that Esc presses.
QList<BoxAnswer> boxChoices(const Box& box);
BoxAnswer defaultAnswer(const Box& box);
BoxAnswer escapeAnswer(const Box& box);

// True while a box is open. What comes back from a box has not come back from outside.
bool boxIsOpen();

// Test door: answers boxes in place of a person. An answerer that returns nothing lets the box come up.
using BoxAnswerer = std::function<std::optional<BoxAnswer>(const Box&)>;
void setBoxAnswerer(BoxAnswerer answerer);
