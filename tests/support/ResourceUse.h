#pragma once

// What this process or its finished children have used, for tests that
// bound a reader's memory and time on the machine's own counters.

#include <QtGlobal>

#include <sys/resource.h>

// Sanitized builds run several times slower and keep shadow memory and freed
// blocks in quarantine, so their peak says nothing of the code's own.
#if defined(__SANITIZE_ADDRESS__)
#define KORVANE_SANITIZED 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define KORVANE_SANITIZED 1
#endif
#endif

// Processor time in milliseconds (RUSAGE_SELF or RUSAGE_CHILDREN): unlike
// the clock on the wall, it does not grow when other work shares the machine.
inline qint64 CpuMilliseconds(int who)
{
    rusage usage{};
    getrusage(who, &usage);
    return (usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) * 1000 +
           (usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1000;
}

// The largest resident size so far in KiB: of this process, or of the
// largest finished child.
inline qint64 PeakKiB(int who)
{
    rusage usage{};
    getrusage(who, &usage);
    return static_cast<qint64>(usage.ru_maxrss);
}
