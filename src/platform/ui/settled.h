#pragma once
#include "platform/outcome.h"

#include <functional>

class QWidget;

// What a screen does with the answer of a module.

// Shows the boxes of what is done, or the fault, with the focus on its field of this screen. True when it is
// done. A question must have been asked before.
bool settled(const Outcome& outcome, QWidget* screen);

// Asks a module's questions one by one and calls it again with the answers, until it is Done or a Fault.
Outcome askUntilSettled(const std::function<Outcome(const Answers&)>& request);
