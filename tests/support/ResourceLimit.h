// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <csignal>
#include <sys/resource.h>

// What the system gives this process at most (RLIMIT_...), for as long as this object lives. A write beyond the longest
// file fails and does not end the process.
class ResourceLimit final
{
public:
    using Resource = __rlimit_resource_t;

    ResourceLimit(Resource resource, rlim_t most)
        : m_resource(resource)
    {
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(resource, &m_usual);
        rlimit low = m_usual;
        low.rlim_cur = most;
        if (setrlimit(resource, &low) != 0) {
            qFatal("ResourceLimit: no limit");
        }
    }
    ~ResourceLimit()
    {
        setrlimit(m_resource, &m_usual);
        std::signal(SIGXFSZ, m_handler);
    }
    Q_DISABLE_COPY_MOVE(ResourceLimit)

private:
    Resource m_resource;
    rlimit m_usual{};
    void (*m_handler)(int) = nullptr;
};
