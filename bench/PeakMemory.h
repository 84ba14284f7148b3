// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

// Bytes that the process takes at most while it does the work, above what it takes before. Measured in a process of its
// own, which ends without the ends of its objects.
double peakMemoryOf(const std::function<void()> &work);
