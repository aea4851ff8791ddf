#include "platform/print/print_queue.h"

#include <cups/cups.h>

#include <algorithm>

int printQueue::newestJob(const QString& printer) {
    constexpr int ownJobs = 1;
    cups_job_t* jobs = nullptr;
    const int count =
        cupsGetJobs2(CUPS_HTTP_DEFAULT, &jobs, printer.toUtf8().constData(), ownJobs, CUPS_WHICHJOBS_ALL);
    int newest = 0;
    for (int i = 0; i < count; ++i) newest = std::max(newest, jobs[i].id);
    cupsFreeJobs(count, jobs);
    return newest;
}
