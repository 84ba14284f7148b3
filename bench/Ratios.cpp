// SPDX-License-Identifier: MIT
#include "Ratios.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <ctime>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {
// Of the quantities that a repetition sums up: short times are measured several times in turn, until they are so many
// seconds; everything else counts once.
constexpr double enough = 0.2;
const char counterName[] = "ratio";

struct Announced
{
    std::string what;
    Ratio::Bound bound;
    double limit;
};

std::vector<Announced> &announced()
{
    static std::vector<Announced> all;
    return all;
}

double secondsOfProcessor()
{
    constexpr double nanosecond = 1e-9;
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * nanosecond;
}

// One repetition.
void measure(benchmark::State &state, const Quantity &measured, const Quantity &baseline)
{
    for (auto _ : state) {
        double measuredSum = 0;
        double baselineSum = 0;
        do {
            baselineSum += baseline();
            measuredSum += measured();
        } while (measuredSum + baselineSum < enough);
        state.counters[counterName] = measuredSum / baselineSum;
    }
}

// Prints as usual, and keeps the ratio of every repetition by the name of its benchmark.
class KeepingReporter final : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            const auto ratio = run.counters.find(counterName);
            if (run.run_type == Run::RT_Iteration && ratio != run.counters.end()) {
                m_ratios[run.run_name.function_name].push_back(ratio->second);
            }
        }
        ConsoleReporter::ReportRuns(runs);
    }

    // From the smallest to the largest; none of what was not run.
    std::vector<double> sortedRatios(const std::string &name) const
    {
        const auto found = m_ratios.find(name);
        auto sorted = found == m_ratios.end() ? std::vector<double>() : found->second;
        std::sort(sorted.begin(), sorted.end());
        return sorted;
    }

private:
    std::map<std::string, std::vector<double>> m_ratios;
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
    std::array<char, 40> text{};
    std::snprintf(text.data(), text.size(), "%s %.4g", ratio.bound == Ratio::Bound::AtMost ? "<=" : ">=", ratio.limit);
    return text.data();
}

// Whether one repetition at least was within the bound.
bool print(const Announced &ratio, const std::vector<double> &sorted)
{
    if (sorted.empty()) {
        std::printf("%-66s %9s %22s %9s\n", ratio.what.c_str(), "not run", "", limitText(ratio).c_str());
        return true;
    }
    const double median = sorted[sorted.size() / 2];
    const bool reached = within(ratio, sorted.front()) || within(ratio, sorted.back());
    std::printf("%-66s %9.4g %10.4g -%10.4g %9s %s\n", ratio.what.c_str(), median, sorted.front(), sorted.back(),
                limitText(ratio).c_str(),
                !reached                ? "NOT REACHED"
                : within(ratio, median) ? ""
                                        : "at the edge");
    return reached;
}
} // namespace

double processorTime(const std::function<void()> &work)
{
    const double start = secondsOfProcessor();
    work();
    return secondsOfProcessor() - start;
}

Quantity timeOf(std::function<void()> work)
{
    return [work = std::move(work)]() { return processorTime(work); };
}

Quantity meanOf(int times, Quantity quantity)
{
    return [times, quantity = std::move(quantity)]() {
        double sum = 0;
        for (int i = 0; i < times; ++i) {
            sum += quantity();
        }
        return sum / times;
    };
}

Quantity constant(double value)
{
    return [value]() { return value; };
}

Ratio::Ratio(const char *what, Quantity measured, Quantity baseline, Bound bound, double limit, int repetitions)
{
    announced().push_back({what, bound, limit});
    const auto run = [measured = std::move(measured), baseline = std::move(baseline)](benchmark::State &state) {
        measure(state, measured, baseline);
    };
    benchmark::RegisterBenchmark(what, run)->Iterations(1)->Repetitions(repetitions)->Unit(benchmark::kMillisecond);
}

int runBenchmarksAndPrintRatios()
{
    KeepingReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);

    std::printf("\n%-66s %9s %22s %9s\n", "ratio", "median", "spread", "to reach");
    bool allReached = true;
    for (const Announced &ratio : announced()) {
        allReached = print(ratio, reporter.sortedRatios(ratio.what)) && allReached;
    }
    return allReached ? 0 : 1;
}
