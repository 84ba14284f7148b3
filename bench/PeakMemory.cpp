// SPDX-License-Identifier: MIT
#include "PeakMemory.h"

#include <array>
#include <cstdlib>
#include <fstream>
#include <malloc.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace {
// A line of /proc/self/status, in bytes.
double processStatus(const std::string &name)
{
    constexpr double kilobyte = 1024;
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.rfind(name, 0) == 0) {
            return kilobyte * std::strtod(line.c_str() + name.size(), nullptr);
        }
    }
    return 0;
}

double peakHere(const std::function<void()> &work)
{
    malloc_trim(0);                                // memory freed earlier cannot be used unseen
    std::ofstream("/proc/self/clear_refs") << "5"; // the peak starts anew
    const double before = processStatus("VmRSS:");
    work();
    return processStatus("VmHWM:") - before;
}
} // namespace

double peakMemoryOf(const std::function<void()> &work)
{
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) {
        std::abort();
    }
    if (fork() == 0) {
        const double peak = peakHere(work);
        _exit(write(ends[1], &peak, sizeof(peak)) == sizeof(peak) ? 0 : 1);
    }
    close(ends[1]);
    double peak = 0;
    if (read(ends[0], &peak, sizeof(peak)) != sizeof(peak)) {
        std::abort();
    }
    close(ends[0]);
    wait(nullptr);
    return peak;
}
