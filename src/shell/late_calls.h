#pragma once
#include <functional>

class QObject;

// Calls a routine of the child by its name. A child that has no such routine does nothing; an error is
// passed over.
void callCommand(QObject* child, const char* routine);

// Runs what a menu item does: errors are passed over, and none reaches the event loop. One thing is told:
// that another workstation kept the store busy.
void passOverErrors(const std::function<void()>& action);
