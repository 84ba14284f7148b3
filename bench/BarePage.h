// SPDX-License-Identifier: MIT
#pragma once

#include "ClassicSets.h"

#include <array>

// The random calls of one classic page, and the least that must be done with their results to know the next ones. From
// the same seed it makes the same calls as the generator, so both search the same layouts.
class BarePage final
{
public:
    void fill();

    // Row by row, 0 in empty cells.
    const std::array<unsigned, ClassicSets::rows * ClassicSets::columns> &numbers() const { return m_numbers; }

private:
    unsigned &at(int row, int column);
    void drawRows();
    bool fits() const;
    void repair();
    void moveToNextFree(int row, int column);
    void drawNumbers();

    std::array<unsigned, ClassicSets::rows * ClassicSets::columns> m_numbers{}; // first only whether a cell is filled
    std::array<int, ClassicSets::columns> m_filled{};
};
