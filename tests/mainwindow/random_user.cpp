// SPDX-License-Identifier: MIT
// A user who does anything at any time, also while a box waits for an answer, and answers the boxes anyhow.
//
//     random_user <seed> <sessions> [<steps>]  plays that many sessions, each in a process of its own
//     random_user <seed> --replay <step>...    plays some steps of one session and tells them
//
// RANDOM_USER_FAULT=<step>[,<step>...] plants a fault: the last of these steps is a finding when all were played.
//
// A finding is a session that ends by itself, does not end, or leaves the program in a state that must not be. It is
// told by its seed and the steps that are needed for it.
#include "RandomUser.h"

#include "settings/Config.h"
#include "support/ScratchFolder.h"

#include <QApplication>
#include <QProxyStyle>

#include <algorithm>
#include <array>
#include <cstdio>
#include <fcntl.h>
#include <numeric>
#include <set>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {
constexpr int usualSteps = 1000;
// Seconds after which a session counts as one that never ends: of the processor, and of one that waits for ever.
constexpr rlim_t longestWork = 240;
constexpr unsigned longestWait = 3600;

// Quickly painted, and without the pictures that every box and file dialog would read again.
class PlainStyle final : public QProxyStyle
{
public:
    PlainStyle()
        : QProxyStyle(QStringLiteral("windows"))
    {
    }
    QIcon standardIcon(StandardPixmap, const QStyleOption *, const QWidget *) const override { return QIcon(); }
};

std::set<int> plantedSteps()
{
    std::set<int> steps;
    for (const QByteArray &step : qgetenv("RANDOM_USER_FAULT").split(',')) {
        if (!step.isEmpty()) {
            steps.insert(step.toInt());
        }
    }
    return steps;
}

// In a process of its own, for it ends the process at the first finding.
int play(unsigned seed, const std::vector<int> &steps, bool telling)
{
    int argc = 1;
    std::array<char, 12> name = {"random_user"};
    std::array<char *, 2> argv = {name.data(), nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "default.warning=false");
    qSetGlobalQHashSeed(0);
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication::setStyle(new PlainStyle);
    QApplication app(argc, argv.data());
    QApplication::setQuitOnLastWindowClosed(false);
    const ScratchFolder folder;
    folder.writePicture(QStringLiteral("default.png"), QSize(8, 6), Qt::red);
    CurrentConfig config(&app);
    config.defaultSaveDir = folder.path(QString());
    RandomUser user(seed, telling);
    user.plantFault(plantedSteps());
    return std::all_of(steps.begin(), steps.end(), [&user](int step) { return user.step(step); }) ? 0 : 1;
}

// Whether the steps of a session are played to the end, and the process ends well.
bool endsWell(unsigned seed, const std::vector<int> &steps, bool telling = false)
{
    std::fflush(stdout);
    const pid_t child = fork();
    if (child == 0) {
        const rlimit work{longestWork, longestWork};
        setrlimit(RLIMIT_CPU, &work);
        alarm(longestWait);
        if (!telling) {
            const int nothing = open("/dev/null", O_WRONLY | O_CLOEXEC);
            dup2(nothing, STDOUT_FILENO);
            dup2(nothing, STDERR_FILENO);
        }
        exit(play(seed, steps, telling));
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

// Leaves out, in smaller and smaller pieces, whatever is not needed for the finding.
std::vector<int> shrunk(unsigned seed, std::vector<int> steps)
{
    for (size_t piece = steps.size() / 2; piece > 0; piece /= 2) {
        for (size_t from = 0; from < steps.size();) {
            std::vector<int> fewer(steps.begin(), steps.begin() + static_cast<std::ptrdiff_t>(from));
            fewer.insert(fewer.end(), steps.begin() + static_cast<std::ptrdiff_t>(std::min(from + piece, steps.size())),
                         steps.end());
            if (endsWell(seed, fewer)) {
                from += piece;
            } else {
                steps = fewer;
            }
        }
    }
    return steps;
}

void report(unsigned seed, const std::vector<int> &steps)
{
    std::printf("FOUND with seed %u, shrinking\n", seed);
    std::fflush(stdout);
    const std::vector<int> needed = shrunk(seed, steps);
    std::printf("random_user %u --replay", seed);
    for (const int step : needed) {
        std::printf(" %d", step);
    }
    std::printf("\n");
    endsWell(seed, needed, true);
}

int replay(unsigned seed, const std::vector<int> &steps)
{
    return endsWell(seed, steps, true) ? 0 : 1;
}

int playSessions(unsigned seed, unsigned sessions, int stepsOfEach)
{
    std::vector<int> steps(static_cast<size_t>(stepsOfEach));
    std::iota(steps.begin(), steps.end(), 0);
    unsigned findings = 0;
    for (unsigned session = seed; session < seed + sessions; ++session) {
        if (!endsWell(session, steps)) {
            ++findings;
            report(session, steps);
        }
    }
    std::printf("%u sessions of %d steps, %u with a finding\n", sessions, stepsOfEach, findings);
    return findings == 0 ? 0 : 1;
}
} // namespace

int main(int argc, char **argv)
{
    if (argc < 3) {
        std::fputs("usage: random_user <seed> <sessions> [<steps>]\n"
                   "       random_user <seed> --replay <step>...\n"
                   "RANDOM_USER_FAULT=<step>[,<step>...] plants a fault that needs all these steps\n",
                   stderr);
        return 2;
    }
    const unsigned seed = QByteArray(argv[1]).toUInt();
    if (qstrcmp(argv[2], "--replay") == 0) {
        std::vector<int> steps;
        std::transform(argv + 3, argv + argc, std::back_inserter(steps),
                       [](const char *step) { return std::atoi(step); });
        return replay(seed, steps);
    }
    return playSessions(seed, QByteArray(argv[2]).toUInt(), argc > 3 ? QByteArray(argv[3]).toInt() : usualSteps);
}
