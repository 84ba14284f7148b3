// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <cstdint>
#include <cstdlib>

// What every fuzzer has.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

// Ends the program, which is a finding.
inline void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

inline QByteArray bytesOf(const uint8_t *data, size_t size)
{
    return {reinterpret_cast<const char *>(data), static_cast<int>(size)};
}
