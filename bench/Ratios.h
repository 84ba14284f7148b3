// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

// What the bench is for: each figure as a ratio against a plain baseline of the same run.
//
// Figures must hold still on a machine that does other things, too. So processor time counts instead of the clock, and
// in every repetition the baseline and what is measured run in turn: what disturbs one disturbs the other. The median
// of the repetitions is the figure; its bound is missed only when every single repetition is past it.

// Something measured once: a time in seconds, a size in bytes, ...
using Quantity = std::function<double()>;

// Seconds of the processor that the work takes, whatever else the machine does meanwhile.
double processorTime(const std::function<void()> &work);
// The same as a quantity.
Quantity timeOf(std::function<void()> work);
// The mean of several in a row: makes a short baseline as steady as a measured quantity that takes longer.
Quantity meanOf(int times, Quantity quantity);
// One that is known.
Quantity constant(double value);

// A file of benchmarks announces its ratios before main() by static objects.
struct Ratio
{
    enum class Bound { AtMost, AtLeast, None };

    Ratio(const char *what, Quantity measured, Quantity baseline, Bound bound, double limit, int repetitions = 7);
};

// Runs the ratios that the command line selects, then prints their table. 0 when none misses its bound, else 1.
int runBenchmarksAndPrintRatios();
