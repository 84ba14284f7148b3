// SPDX-License-Identifier: MIT
#include "settings/FreeMemory.h"

#include <QFile>

#include <limits>

namespace {
constexpr double bytesPerKilobyte = 1024.0;
// The estimates are of what is built; showing it takes some more.
constexpr double usablePart = 0.9;
} // namespace

double freeMemory()
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
    return std::numeric_limits<double>::infinity();
}

bool fitsMemory(double bytes)
{
    return bytes <= freeMemory() * usablePart;
}
