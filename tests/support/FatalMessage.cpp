// SPDX-License-Identifier: MIT
#include "support/FatalMessage.h"

#include <QByteArray>

#include <array>
#include <sys/wait.h>
#include <unistd.h>

#ifdef QUINTRA_COVERAGE
extern "C" void __gcov_dump();
#endif

namespace {
constexpr int diedFatally = 42;
int reportPipe = -1;

void reportFatal(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type != QtFatalMsg) {
        return;
    }
    const QByteArray text = message.toUtf8();
    const bool sent = write(reportPipe, text.constData(), static_cast<size_t>(text.size())) == text.size();
#ifdef QUINTRA_COVERAGE
    __gcov_dump(); // the end of the child would forget which code ran
#endif
    _exit(sent ? diedFatally : 1);
}

QByteArray readToEnd(int descriptor)
{
    QByteArray all;
    std::array<char, 4096> part{};
    for (ssize_t n = 0; (n = read(descriptor, part.data(), part.size())) > 0;) {
        all.append(part.data(), static_cast<int>(n));
    }
    return all;
}
} // namespace

QString fatalMessageOf(const std::function<void()> &action)
{
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) {
        qFatal("fatalMessageOf: no pipe");
    }
    const pid_t child = fork();
    if (child == 0) {
        close(ends[0]);
        reportPipe = ends[1];
        qInstallMessageHandler(reportFatal);
        action();
        _exit(0);
    }
    close(ends[1]);
    const QByteArray text = readToEnd(ends[0]);
    close(ends[0]);
    int state = 0;
    waitpid(child, &state, 0);
    return WIFEXITED(state) && WEXITSTATUS(state) == diedFatally ? QString::fromUtf8(text) : QString();
}
