// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <array>
#include <new>
#include <sys/mman.h>
#include <vector>

// The numbers that a child process has shown, which its parent still knows when the child was killed.
class SharedCalls final
{
public:
    SharedCalls()
        : m_table(new (memory()) Table)
    {
    }
    ~SharedCalls() { munmap(m_table, sizeof(Table)); }
    Q_DISABLE_COPY_MOVE(SharedCalls)

    void show(quint32 number)
    {
        m_table->numbers[m_table->count] = number;
        m_table->count = m_table->count + 1;
    }
    std::vector<quint32> shown() const { return {m_table->numbers.begin(), m_table->numbers.begin() + m_table->count}; }

private:
    struct Table
    {
        std::array<quint32, 1000> numbers{};
        volatile size_t count = 0;
    };

    static void *memory()
    {
        return mmap(nullptr, sizeof(Table), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    }

    Table *m_table;
};

// Whether all of `some` are in `all`, in the same order.
inline bool containsInOrder(const std::vector<quint32> &all, const std::vector<quint32> &some)
{
    auto next = some.begin();
    for (const quint32 number : all) {
        if (next != some.end() && *next == number) {
            ++next;
        }
    }
    return next == some.end();
}
