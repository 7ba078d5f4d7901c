/// The clock of benchmarks that take the time themselves: what the thread has had of the processor, so that other
/// work on the machine does not count.
#pragma once

#include <ctime>

namespace velkor::bench {

/// Seconds of processor time of this thread.
inline double cpuSeconds() noexcept {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

/// Processor time of this thread since the object was made.
class CpuTimer {
public:
    double seconds() const noexcept { return cpuSeconds() - _start; }

private:
    double _start = cpuSeconds();
};

} // namespace velkor::bench
