// SPDX-License-Identifier: MIT
#include "ClassicSets.h"
#include "Ratios.h"

#include "generation/BlockSignature.h"

#include <benchmark/benchmark.h>

#include <vector>

namespace {
using namespace ClassicSets;

// Generated blocks are as good as certainly all different.
Quantity comparing(int pages)
{
    return [pages]() {
        const auto set = firstPages(pages);
        return processorTime([&set]() {
            QString summary;
            set->checkForEqualBlocks(nullptr, &summary);
        });
    };
}

std::vector<QString> signaturesOf(const Cartella &set)
{
    std::vector<QString> signatures;
    for (const Pagina *page : set.pagine) {
        for (const Blocco &block : *page) {
            signatures.push_back(blockSignature(block));
        }
    }
    return signatures;
}

void comparePairByPair(const Cartella &set)
{
    const std::vector<QString> signatures = signaturesOf(set);
    quint64 equal = 0;
    for (size_t later = 0; later < signatures.size(); ++later) {
        const size_t ofEarlierPages = later - later % blocks;
        for (size_t earlier = 0; earlier < ofEarlierPages; ++earlier) {
            equal += signatures[later] == signatures[earlier] ? 1U : 0U;
        }
    }
    benchmark::DoNotOptimize(equal);
}

// Of the largest set: the pairs grow with the square of the pages.
double comparingPairByPair()
{
    constexpr int pages = 1000;
    constexpr double growth = double(mostPages) / pages;
    const auto set = firstPages(pages);
    return growth * growth * processorTime([&set]() { comparePairByPair(*set); });
}

const Ratio pairwise("comparing 65535 pages / the same pair by pair, extrapolated", comparing(mostPages),
                     comparingPairByPair, Ratio::Bound::AtMost, 0.02, 5);
const Ratio growth("comparing 65535 pages / 6553 pages", comparing(mostPages),
                   meanOf(mostPages / tenthOfMostPages, comparing(tenthOfMostPages)), Ratio::Bound::AtMost, 11, 5);
} // namespace
