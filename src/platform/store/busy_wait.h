#pragma once
#include <QDeadlineTimer>

// The wait for another workstation that holds the store: at most five seconds in all, with the idle hook
// called about every 20 milliseconds.
class BusyWait {
  public:
    // Waits a little; false when the time is over and the statement has to fail.
    bool again();

  private:
    QDeadlineTimer deadline_{5000};
};
