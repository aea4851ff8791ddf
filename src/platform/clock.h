#pragma once
#include <QDateTime>
#include <functional>

// The session's clock: the machine's clock plus the offset that the user confirmed.
namespace Clock {
QDateTime now();
QDate today();
// From here on now() reads this moment and runs on.
void setNow(const QDateTime& moment);
void clearOffset();
// Stands still at this moment until cleared; for tests and for a played day.
void freeze(const QDateTime& moment);
void unfreeze();
// Sets the machine's clock. False where the program may not; nothing has changed then.
bool setSystemClock(const QDateTime& moment);
// Test door: replaces what setSystemClock does. An empty function restores it.
void setSystemClockDoor(std::function<bool(const QDateTime&)> door);
}  // namespace Clock
