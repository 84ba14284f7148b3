// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

// What every fuzzer has.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

// Ends the program, which is a finding, and tells the line that called.
inline void require(bool holds, int line = __builtin_LINE())
{
    if (!holds) {
        std::fprintf(stderr, "line %d does not hold\n", line);
        std::abort();
    }
}

inline QByteArray bytesOf(const uint8_t *data, size_t size)
{
    return {reinterpret_cast<const char *>(data), static_cast<int>(size)};
}
