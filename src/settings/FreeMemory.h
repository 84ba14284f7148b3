// SPDX-License-Identifier: MIT
#pragma once

// Memory in bytes, as a double: what a user can ask for does not fit 64 bits.

// What the machine, and a limit set for this program, can still give it; infinity where that cannot be found out.
[[nodiscard]] double freeMemory();

// Whether so much fits, with room left for the rest of the machine.
[[nodiscard]] bool fitsMemory(double bytes);
