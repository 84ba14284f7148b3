// SPDX-License-Identifier: MIT
#include "BarePage.h"
#include "ClassicSets.h"
#include "Ratios.h"

#include "generation/GUtils.h"

#include <benchmark/benchmark.h>

#include <malloc.h>

namespace {
using namespace ClassicSets;

constexpr unsigned seed = 1;
constexpr int manyFillings = 100;

// One page again and again.
double fillingOnePage()
{
    static const Cartella set(blocks, rowsPerBlock, columns);
    seedRandom(seed);
    return processorTime([]() {
        for (int i = 0; i < manyFillings; ++i) {
            fill(set.pagine.first());
        }
    });
}

double randomCallsAlone()
{
    BarePage page;
    seedRandom(seed);
    return processorTime([&page]() {
        for (int i = 0; i < manyFillings; ++i) {
            page.fill();
            benchmark::DoNotOptimize(page.numbers().data());
        }
    });
}

Quantity generating(int pages)
{
    return [pages]() {
        std::unique_ptr<Cartella> set;
        seedRandom(seed);
        return processorTime([&]() { set = filled(pages); }); // its end does not count
    };
}

double allocatedBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

constexpr int pagesInMemory = 10000;

double memoryOfSet()
{
    const double before = allocatedBytes();
    const auto set = filled(pagesInMemory);
    return allocatedBytes() - before;
}

// Of pages a second, each six cards: generated, then compared with each other.
double cardsASecond()
{
    constexpr int pages = 1000;
    std::unique_ptr<Cartella> set;
    const double seconds = processorTime([&]() {
        set = filled(pages);
        set->checkForEqualBlocks();
    });
    return pages * blocks / seconds;
}
constexpr double publishedCardsASecond = 5952;

const Ratio page("filling one classic page / the random calls alone", fillingOnePage, randomCallsAlone,
                 Ratio::Bound::AtMost, 1.5);
const Ratio growth("generating 65535 pages / 6553 pages", generating(mostPages),
                   meanOf(mostPages / tenthOfMostPages, generating(tenthOfMostPages)), Ratio::Bound::AtMost, 11, 5);
const Ratio memory("memory of 10000 classic pages / their cells' records", memoryOfSet,
                   constant(double(pagesInMemory) * rows * columns * sizeof(Cella)), Ratio::Bound::AtMost, 1.15, 1);
const Ratio cards("cards a second, generated and compared / 5952", cardsASecond, constant(publishedCardsASecond),
                  Ratio::Bound::AtLeast, 20);
} // namespace
