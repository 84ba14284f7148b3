// SPDX-License-Identifier: MIT
#pragma once

#include <string>

// What the bench is for: each figure as a ratio against a plain baseline of the same run.
//
// A benchmark's time counts under the benchmark's name; other quantities (bytes) are recorded by hand. A file of
// benchmarks announces its ratios before main() by a static `const Ratio`.
struct Ratio
{
    enum class Bound { AtMost, AtLeast, None };

    // `measured` divided by `baseline`, both names of benchmarks or of recorded quantities.
    Ratio(const char *what, const char *measured, const char *baseline, Bound bound, double limit);
};

// Records a quantity that is not a benchmark's time.
void recordQuantity(const std::string &name, double value);

// Runs the benchmarks that the command line selects, then prints the table of the ratios measured in this run. 0 when
// all are within their bounds, else 1.
int runBenchmarksAndPrintRatios();
