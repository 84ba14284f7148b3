// SPDX-License-Identifier: MIT
#include "support/FileFaults.h"

#include <QByteArray>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {
struct Plan
{
    QByteArray path; // empty: no faults
    FileFaults::Calls calls = FileFaults::Calls::Changes;
    int at = 0;
    FileFaults::Effect effect = FileFaults::Effect::Error;
    int seen = 0;
    const char *struck = nullptr;
};

Plan &plan()
{
    static Plan current;
    return current;
}

bool isBelow(const char *path)
{
    const QByteArray &folder = plan().path;
    return !folder.isEmpty() && std::strncmp(path, folder.constData(), static_cast<size_t>(folder.size())) == 0;
}

bool isBelow(int descriptor)
{
    if (plan().path.isEmpty()) {
        return false;
    }
    std::array<char, 64> link{};
    std::array<char, 4096> path{};
    std::snprintf(link.data(), link.size(), "/proc/self/fd/%d", descriptor);
    return readlink(link.data(), path.data(), path.size() - 1) > 0 && isBelow(path.data());
}

// Counts the call and tells whether the fault comes now.
bool isDue(FileFaults::Calls calls)
{
    Plan &p = plan();
    const bool all = p.calls == FileFaults::Calls::All && calls != FileFaults::Calls::Creations;
    if (p.calls != calls && !all) {
        return false;
    }
    ++p.seen;
    const bool lasts = p.effect == FileFaults::Effect::LastingError;
    return p.at > 0 && (p.seen == p.at || (lasts && p.seen > p.at));
}

// Returns only where the call is to fail.
void strike(const char *call, int error)
{
    plan().struck = call;
    if (plan().effect == FileFaults::Effect::Death) {
        raise(SIGKILL);
    }
    errno = error;
}

template<class Function>
Function *next(const char *name)
{
    auto *found = reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
    if (found == nullptr) {
        std::abort();
    }
    return found;
}

using DescriptorCall = int(int);

bool failsNow(const char *call, int descriptor)
{
    const bool due = isBelow(descriptor) && isDue(FileFaults::Calls::Changes);
    if (due) {
        strike(call, EIO);
    }
    return due;
}

// Rights are given for a new file only, with a name or without.
bool givesRights(int flags)
{
    return (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
}
} // namespace

// Found here before the C library, by the shared libraries too.
extern "C" {
__attribute__((visibility("default"))) ssize_t write(int descriptor, const void *data, size_t size)
{
    static auto *real = next<ssize_t(int, const void *, size_t)>("write");
    if (isBelow(descriptor) && isDue(FileFaults::Calls::Changes)) {
        if (real(descriptor, data, size / 2) >= 0) {
            strike("write", ENOSPC);
        }
        return -1;
    }
    return real(descriptor, data, size);
}

// What the toolkit opens files with.
__attribute__((visibility("default"))) int open64(const char *path, int flags, ...)
{
    static auto *real = next<int(const char *, int, ...)>("open64");
    if (!givesRights(flags)) {
        return real(path, flags);
    }
    if ((flags & O_CREAT) != 0 && isBelow(path) && access(path, F_OK) != 0 && isDue(FileFaults::Calls::Creations)) {
        strike("open", ENOSPC);
        return -1;
    }
    va_list rights;
    va_start(rights, flags);
    const mode_t mode = va_arg(rights, mode_t);
    va_end(rights);
    return real(path, flags, mode);
}

__attribute__((visibility("default"))) ssize_t read(int descriptor, void *data, size_t size)
{
    static auto *real = next<ssize_t(int, void *, size_t)>("read");
    const bool inBlocks = plan().calls == FileFaults::Calls::ReadsOfBlocks;
    if (!isBelow(descriptor)) {
        return real(descriptor, data, size);
    }
    if (isDue(inBlocks ? FileFaults::Calls::ReadsOfBlocks : FileFaults::Calls::Reads)) {
        strike("read", EIO);
        return -1;
    }
    constexpr size_t block = 4096;
    return real(descriptor, data, inBlocks ? std::min(size, block) : size);
}

__attribute__((visibility("default"))) int fsync(int descriptor)
{
    static auto *real = next<DescriptorCall>("fsync");
    return failsNow("fsync", descriptor) ? -1 : real(descriptor);
}

__attribute__((visibility("default"))) int fdatasync(int descriptor)
{
    static auto *real = next<DescriptorCall>("fdatasync");
    return failsNow("fdatasync", descriptor) ? -1 : real(descriptor);
}

__attribute__((visibility("default"))) int close(int descriptor)
{
    static auto *real = next<DescriptorCall>("close");
    const bool fails = failsNow("close", descriptor);
    const int result = real(descriptor); // a failing close closes all the same
    if (fails) {
        errno = EIO;
        return -1;
    }
    return result;
}

__attribute__((visibility("default"))) int rename(const char *from, const char *to) noexcept
{
    static auto *real = next<int(const char *, const char *)>("rename");
    if (isBelow(to) && isDue(FileFaults::Calls::Changes)) {
        strike("rename", EIO);
        return -1;
    }
    return real(from, to);
}
}

FileFaults::FileFaults(const QString &path, Calls calls, int at, Effect effect)
{
    if (!plan().path.isEmpty()) {
        qFatal("FileFaults: one at a time");
    }
    plan() = Plan{path.toLocal8Bit(), calls, at, effect, 0, nullptr};
}

FileFaults::~FileFaults()
{
    plan() = Plan{};
}

int FileFaults::seen()
{
    return plan().seen;
}

const char *FileFaults::struck()
{
    return plan().struck;
}

bool isKilledDuring(const std::function<void()> &action)
{
    const pid_t child = fork();
    if (child == 0) {
        action();
        _exit(0);
    }
    int state = 0;
    waitpid(child, &state, 0);
    return WIFSIGNALED(state) && WTERMSIG(state) == SIGKILL;
}
