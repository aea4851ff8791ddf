#pragma once
#include <QDeadlineTimer>

// The wait for another workstation that holds the store: at most five seconds in all. It looks every two
// milliseconds, for a long pass lets others in for a few only, and calls the idle hook every twentieth.
class BusyWait {
  public:
    // Waits a little; false when the time is over and the statement has to fail.
    bool again();

  private:
    QDeadlineTimer deadline_{5000};
    QDeadlineTimer nextIdle_{0};
};
