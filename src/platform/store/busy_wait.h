#pragma once
#include "platform/store/transaction.h"

#include <QDeadlineTimer>

// The wait for another workstation that holds the store: at most five seconds in all. It looks every two
// milliseconds, for a long pass lets others in for a few only, and calls the idle hook every twentieth.
class BusyWait {
  public:
    explicit BusyWait(Turn turn = Turn::Any) : lookEveryMs_(turn == Turn::Any ? 2 : 12) {}
    // Waits a little; false when the time is over and the statement has to fail.
    bool again();

  private:
    unsigned long lookEveryMs_;
    QDeadlineTimer deadline_{5000};
    QDeadlineTimer nextIdle_{0};
};
