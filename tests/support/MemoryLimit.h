// SPDX-License-Identifier: MIT
#pragma once

#include "support/ResourceLimit.h"

#include <QFile>

#include <cstdlib>
#include <memory>
#include <new>
#include <unistd.h>

// For as long as it lives this process gets so many more bytes of memory at most: an allocation beyond fails.
class MemoryLimit final
{
public:
    explicit MemoryLimit(rlim_t more)
    {
        takeWhatWasFreed();
        m_limit = std::make_unique<ResourceLimit>(RLIMIT_AS, taken() + more);
    }
    ~MemoryLimit()
    {
        m_limit.reset();
        while (m_first != nullptr) {
            Block *next = m_first->next;
            std::free(m_first);
            m_first = next;
        }
    }
    Q_DISABLE_COPY_MOVE(MemoryLimit)

    // AddressSanitizer ends the program at the first allocation that fails.
    static constexpr bool isSurvived()
    {
#if defined(__SANITIZE_ADDRESS__)
        return false;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
        return false;
#else
        return true;
#endif
#else
        return true;
#endif
    }

private:
    struct Block
    {
        Block *next;
    };

    // What the process has freed before it would get again without asking the system.
    void takeWhatWasFreed()
    {
        if (!isSurvived()) {
            return;
        }
        const ResourceLimit none(RLIMIT_AS, 1);
        for (const size_t size : {size_t(1) << 20, size_t(1) << 14, size_t(1) << 9}) {
            while (void *memory = std::malloc(size)) {
                m_first = new (memory) Block{m_first};
            }
        }
    }

    static rlim_t taken()
    {
        QFile file(QStringLiteral("/proc/self/statm"));
        if (!file.open(QIODevice::ReadOnly)) {
            qFatal("MemoryLimit: unknown size");
        }
        return file.readAll().split(' ').first().toULong() * static_cast<rlim_t>(sysconf(_SC_PAGESIZE));
    }

    Block *m_first = nullptr; // owned, with those after it
    std::unique_ptr<ResourceLimit> m_limit;
};
