#pragma once
#include <QString>

// The queue that takes what is printed. The printer object itself reports success even for pages that the
// queue has refused: it takes no jobs, or its disk is full.
namespace printQueue {

// The number of this person's newest job on the printer, waiting, printing or done; 0: there is none. A job
// that the queue takes gets a higher number than all before it.
int newestJob(const QString& printer);

}  // namespace printQueue
