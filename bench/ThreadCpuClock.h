#pragma once

#include <chrono>
#include <cstdint>
#include <ctime>

// Thread CPU time: other processes on a shared machine count against neither
// side of a comparison.
struct ThreadCpuClock
{
    using duration = std::chrono::nanoseconds;
    using time_point = std::chrono::time_point<ThreadCpuClock, duration>;
    static time_point now()
    {
        timespec t{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
        return time_point(duration(std::int64_t(t.tv_sec) * 1000000000 + t.tv_nsec));
    }
};
