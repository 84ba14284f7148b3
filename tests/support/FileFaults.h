// SPDX-License-Identifier: MIT
#pragma once

#include <QMetaType>
#include <QString>

#include <functional>

// Faults of the file system on what lies below one path (a folder or a file), for as long as this object lives. One at
// a time. The program is linked with calls to the system of its own, through which those of the toolkit go too.
class FileFaults final
{
public:
    enum class Calls {
        Changes, // every write, sync, close and rename
        Reads,
        ReadsOfBlocks, // as a disk that fails in the midst of a file gives what comes before
        All,
        Creations // every opening that makes a new file; not among All
    };
    enum class Effect {
        Error,        // one call fails
        LastingError, // this call and all later ones fail
        Death         // the process is killed, a write is half done
    };

    // The fault comes at call number `at`, from 1 on; 0 is never.
    FileFaults(const QString &path, Calls calls, int at, Effect effect);
    ~FileFaults();
    Q_DISABLE_COPY_MOVE(FileFaults)

    // Calls until now.
    static int seen();
    // The name of the call that failed last, null until one does.
    static const char *struck();
};

Q_DECLARE_METATYPE(FileFaults::Effect)

// Runs `action` in a child process. Whether it was killed before it came to its end.
bool isKilledDuring(const std::function<void()> &action);
