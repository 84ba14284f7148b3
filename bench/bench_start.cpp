// SPDX-License-Identifier: MIT
#include "Ratios.h"

#include <QFile>
#include <QtGlobal>

#include <array>
#include <cstdlib>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {
double seconds(const timeval &time)
{
    constexpr double microsecond = 1e-6;
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * microsecond;
}

// Of the processor, until the program has ended at its first window.
Quantity starting(const char *program)
{
    return [program]() {
        std::array<char *, 2> arguments{const_cast<char *>(program), nullptr};
        pid_t child = 0;
        int status = 0;
        rusage usage{};
        if (posix_spawn(&child, program, nullptr, nullptr, arguments.data(), environ) != 0 ||
            wait4(child, &status, 0, &usage) != child || status != 0) {
            qFatal("%s did not run", program);
        }
        return seconds(usage.ru_utime) + seconds(usage.ru_stime);
    };
}

// For an Italian, with the translations beside the program.
Quantity startingQuintra()
{
    return []() {
        qputenv("LC_ALL", "it_IT.UTF-8");
        QFile::link(QStringLiteral(LANGUAGE_FOLDER), QStringLiteral("language"));
        return starting(START_QUINTRA)();
    };
}

const Ratio start("start until the first window / its bare widgets", startingQuintra(), starting(START_BARE),
                  Ratio::Bound::AtMost, 1.15);
const Ratio startOfEmpty("start until the first window / an empty window", startingQuintra(), starting(START_EMPTY),
                         Ratio::Bound::None, 0);
} // namespace
