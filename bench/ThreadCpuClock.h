#pragma once

#include <chrono>
#include <cstdint>
#include <ctime>

// CPU time as a clock: other processes on a shared machine count against
// neither side of a comparison. ThreadCpuClock counts the calling thread,
// ProcessCpuClock the whole process (helper threads of Qt's painter too).
template <clockid_t Id> struct CpuClock
{
    using duration = std::chrono::nanoseconds;
    using time_point = std::chrono::time_point<CpuClock, duration>;
    static time_point now()
    {
        timespec t{};
        clock_gettime(Id, &t);
        return time_point(duration(std::int64_t(t.tv_sec) * 1000000000 + t.tv_nsec));
    }
};
using ThreadCpuClock = CpuClock<CLOCK_THREAD_CPUTIME_ID>;
using ProcessCpuClock = CpuClock<CLOCK_PROCESS_CPUTIME_ID>;
