// SPDX-License-Identifier: MIT
#include "settings/FreeMemory.h"

#include <QFile>

#include <algorithm>
#include <limits>
#include <sys/resource.h>
#include <unistd.h>

namespace {
constexpr double bytesPerKilobyte = 1024.0;
// The estimates are of what is built; showing it takes some more.
constexpr double usablePart = 0.9;
constexpr double endless = std::numeric_limits<double>::infinity();

double freeMemoryOfMachine()
{
    QFile file(QStringLiteral("/proc/meminfo"));
    const QByteArray key = "MemAvailable:";
    if (file.open(QIODevice::ReadOnly)) {
        for (const QByteArray &line : file.readAll().split('\n')) {
            if (line.startsWith(key)) {
                return line.mid(key.size()).trimmed().split(' ').first().toDouble() * bytesPerKilobyte;
            }
        }
    }
    return endless;
}

// What a limit set for this program (ulimit -v) leaves it.
double freeMemoryOfProcess()
{
    rlimit limit{};
    QFile file(QStringLiteral("/proc/self/statm"));
    if (getrlimit(RLIMIT_AS, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY || !file.open(QIODevice::ReadOnly)) {
        return endless;
    }
    const double pages = file.readAll().split(' ').first().toDouble();
    const double taken = pages * static_cast<double>(sysconf(_SC_PAGESIZE));
    return std::max(0.0, static_cast<double>(limit.rlim_cur) - taken);
}
} // namespace

double freeMemory()
{
    return std::min(freeMemoryOfMachine(), freeMemoryOfProcess());
}

bool fitsMemory(double bytes)
{
    return bytes <= freeMemory() * usablePart;
}
