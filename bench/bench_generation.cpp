// SPDX-License-Identifier: MIT
#include "Ratios.h"

#include "generation/GUtils.h"
#include "generation/GeneraCartellaClassica.h"
#include "model/Cartella.h"

#include <benchmark/benchmark.h>

#include <array>
#include <malloc.h>

namespace {
// A page of six cards, 1 to 90.
constexpr U8 blocks = 6;
constexpr U8 rowsPerBlock = 3;
constexpr U8 columns = 9;
constexpr U8 drawnPerRow = 5;
constexpr int lowest = 1;
constexpr int highest = 90;
constexpr int rows = blocks * rowsPerBlock;
constexpr unsigned seed = 1;

const Ratio pageRatio("filling one classic page / the random calls alone", "fillClassicPage", "classicRandomCalls",
                      Ratio::Bound::AtMost, 3.0);
const Ratio memoryRatio("memory of 10000 classic pages / their cells' records", "bytesOfClassicSet", "bytesOfRecords",
                        Ratio::Bound::AtMost, 1.15);

bool fill(Pagina *page)
{
    return GeneraCartellaClassica().generate(page, columns, drawnPerRow, 0, 0, lowest, highest);
}

// The random calls of one page, and the least that must be done with their results to know the next ones.
class BarePage final
{
public:
    void fill()
    {
        drawRows();
        while (!fits()) {
            repair();
        }
        drawNumbers();
    }

    const std::array<unsigned, rows * columns> &numbers() const { return m_numbers; }

private:
    static constexpr std::array<int, columns> first{1, 10, 20, 30, 40, 50, 60, 70, 80};
    static constexpr std::array<int, columns> capacity{9, 10, 10, 10, 10, 10, 10, 10, 11};

    unsigned &at(int row, int column) { return m_numbers[static_cast<size_t>(row * columns + column)]; }

    void drawRows()
    {
        m_numbers.fill(0);
        m_filled.fill(0);
        for (int row = 0; row < rows; ++row) {
            for (const unsigned column : GUtils::generate_X_different_numbers(drawnPerRow, 0, columns - 1)) {
                at(row, static_cast<int>(column)) = 1;
                ++m_filled[column];
            }
        }
    }

    bool fits() const
    {
        for (size_t column = 0; column < columns; ++column) {
            if (m_filled[column] > capacity[column]) {
                return false;
            }
        }
        return true;
    }

    void repair()
    {
        for (int column = 0; column < columns; ++column) {
            const auto c = static_cast<size_t>(column);
            while (m_filled[c] > capacity[c]) {
                const int row = nextRandom() % rows;
                if (at(row, column) != 0) {
                    moveToNextFree(row, column);
                }
            }
        }
    }

    void moveToNextFree(int row, int column)
    {
        int target = column;
        do {
            target = (target + 1) % columns;
        } while (at(row, target) != 0);
        at(row, column) = 0;
        at(row, target) = 1;
        --m_filled[static_cast<size_t>(column)];
        ++m_filled[static_cast<size_t>(target)];
    }

    void drawNumbers()
    {
        for (int column = 0; column < columns; ++column) {
            const auto c = static_cast<size_t>(column);
            const auto lowestOfColumn = static_cast<unsigned>(first[c]);
            const auto order = GUtils::generate_X_different_numbers(
                capacity[c], lowestOfColumn, lowestOfColumn + static_cast<unsigned>(capacity[c]) - 1);
            int next = 0;
            for (int row = 0; row < rows; ++row) {
                if (at(row, column) != 0) {
                    at(row, column) = order[next++];
                }
            }
        }
    }

    std::array<unsigned, rows * columns> m_numbers{}; // first only whether a cell is filled
    std::array<int, columns> m_filled{};
};

// Both start from the same seed and make the same calls, so they search the same layouts.
void fillClassicPage(benchmark::State &state)
{
    Cartella set(blocks, rowsPerBlock, columns);
    seedRandom(seed);
    for (auto _ : state) {
        if (!fill(set.pagine.first())) {
            state.SkipWithError("the page was not filled");
        }
    }
}
BENCHMARK(fillClassicPage);

void classicRandomCalls(benchmark::State &state)
{
    BarePage page;
    seedRandom(seed);
    for (auto _ : state) {
        page.fill();
        benchmark::DoNotOptimize(page.numbers().data());
    }
}
BENCHMARK(classicRandomCalls);

double allocatedBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

void memoryOfClassicSet(benchmark::State &state)
{
    constexpr int pages = 10000;
    constexpr double cells = double(pages) * rows * columns;
    for (auto _ : state) {
        const double before = allocatedBytes();
        const Cartella set(pages, blocks, rowsPerBlock, columns);
        for (Pagina *page : set.pagine) {
            fill(page);
        }
        recordQuantity("bytesOfClassicSet", allocatedBytes() - before);
        recordQuantity("bytesOfRecords", cells * double(sizeof(Cella)));
    }
}
BENCHMARK(memoryOfClassicSet)->Iterations(1)->Unit(benchmark::kMillisecond);
} // namespace
