// SPDX-License-Identifier: MIT
#include "Ratios.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <vector>

namespace {
struct Announced
{
    std::string what;
    std::string measured;
    std::string baseline;
    Ratio::Bound bound;
    double limit;
};

std::vector<Announced> &announced()
{
    static std::vector<Announced> all;
    return all;
}

std::map<std::string, double> &quantities()
{
    static std::map<std::string, double> all;
    return all;
}

// Prints as usual and keeps the shortest time of each benchmark: the one least disturbed by the rest of the machine.
class KeepingReporter final : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            if (run.run_type != Run::RT_Iteration || run.error_occurred) {
                continue;
            }
            const std::string name =
                run.run_name.function_name + (run.run_name.args.empty() ? "" : "/") + run.run_name.args;
            const double time = run.GetAdjustedRealTime() / benchmark::GetTimeUnitMultiplier(run.time_unit);
            const auto known = quantities().find(name);
            if (known == quantities().end() || time < known->second) {
                quantities()[name] = time;
            }
        }
        ConsoleReporter::ReportRuns(runs);
    }
};

bool within(const Announced &ratio, double value)
{
    switch (ratio.bound) {
    case Ratio::Bound::AtMost:
        return value <= ratio.limit;
    case Ratio::Bound::AtLeast:
        return value >= ratio.limit;
    case Ratio::Bound::None:
        break;
    }
    return true;
}

std::string limitText(const Announced &ratio)
{
    if (ratio.bound == Ratio::Bound::None) {
        return "-";
    }
    char text[40];
    std::snprintf(text, sizeof(text), "%s %.2f", ratio.bound == Ratio::Bound::AtMost ? "<=" : ">=", ratio.limit);
    return text;
}
} // namespace

Ratio::Ratio(const char *what, const char *measured, const char *baseline, Bound bound, double limit)
{
    announced().push_back({what, measured, baseline, bound, limit});
}

void recordQuantity(const std::string &name, double value)
{
    quantities()[name] = value;
}

int runBenchmarksAndPrintRatios()
{
    KeepingReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);

    bool allWithin = true;
    std::printf("\n%-64s %10s %12s\n", "ratio", "measured", "to reach");
    for (const Announced &ratio : announced()) {
        const auto measured = quantities().find(ratio.measured);
        const auto baseline = quantities().find(ratio.baseline);
        if (measured == quantities().end() || baseline == quantities().end()) {
            std::printf("%-64s %10s %12s\n", ratio.what.c_str(), "not run", limitText(ratio).c_str());
            continue;
        }
        const double value = measured->second / baseline->second;
        const bool good = within(ratio, value);
        allWithin = allWithin && good;
        std::printf("%-64s %10.2f %12s %s\n", ratio.what.c_str(), value, limitText(ratio).c_str(),
                    good ? "" : "NOT REACHED");
    }
    return allWithin ? 0 : 1;
}
