// SPDX-License-Identifier: MIT
#include "BarePage.h"

#include "generation/GUtils.h"

using ClassicSets::columns;
using ClassicSets::rows;

namespace {
constexpr std::array<int, columns> first{1, 10, 20, 30, 40, 50, 60, 70, 80};
constexpr std::array<int, columns> capacity{9, 10, 10, 10, 10, 10, 10, 10, 11};
} // namespace

void BarePage::fill()
{
    drawRows();
    while (!fits()) {
        repair();
    }
    drawNumbers();
}

unsigned &BarePage::at(int row, int column)
{
    return m_numbers[static_cast<size_t>(row * columns + column)];
}

void BarePage::drawRows()
{
    m_numbers.fill(0);
    m_filled.fill(0);
    for (int row = 0; row < rows; ++row) {
        for (const unsigned column : GUtils::generate_X_different_numbers(ClassicSets::drawnPerRow, 0, columns - 1)) {
            at(row, static_cast<int>(column)) = 1;
            ++m_filled[column];
        }
    }
}

bool BarePage::fits() const
{
    for (size_t column = 0; column < columns; ++column) {
        if (m_filled[column] > capacity[column]) {
            return false;
        }
    }
    return true;
}

void BarePage::repair()
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

void BarePage::moveToNextFree(int row, int column)
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

void BarePage::drawNumbers()
{
    for (int column = 0; column < columns; ++column) {
        const auto c = static_cast<size_t>(column);
        const auto lowest = static_cast<unsigned>(first[c]);
        const auto highest = lowest + static_cast<unsigned>(capacity[c]) - 1;
        const auto order = GUtils::generate_X_different_numbers(capacity[c], lowest, highest);
        int next = 0;
        for (int row = 0; row < rows; ++row) {
            if (at(row, column) != 0) {
                at(row, column) = order[next++];
            }
        }
    }
}
