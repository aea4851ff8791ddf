#pragma once
#include <QString>
#include <functional>

class QObject;

// Calls a routine of the child by its name. A child that has no such routine does nothing; an error is
// passed over.
void callCommand(QObject* child, const char* routine);

// Runs what a menu item does: errors are passed over, and none reaches the event loop. They are logged with
// what was done, and one has a box: that another workstation kept the store busy.
void passOverErrors(const QString& what, const std::function<void()>& action);
