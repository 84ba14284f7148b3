// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <optional>
#include <vector>

// The numbers of one column of a page, both included.
struct ColumnRange
{
    int first = 0;
    int last = -1;

    qint64 capacity() const { return qint64(last) - first + 1; }
};

// Whether these are the nine columns of 1 to 90, which go by tens wherever columns have ranges.
bool isClassic(int columns, int nMin, int nMax);

// 1-9, 10-19, ... and the last column one number longer.
std::vector<ColumnRange> rangesByTens(int columns);

// Consecutive ranges of the columns of a classic page, at least one column. Classic columns and 1 to 100 over 10 go by
// tens; every other range is shared out evenly, and columns may then be empty.
std::vector<ColumnRange> columnRanges(int columns, int nMin, int nMax);

// What a layout must keep to.
struct LayoutRules
{
    int rows = 0;
    int filledPerRow = 0;
    std::vector<qint64> capacity; // filled cells that each column may have at most, never negative

    int columns() const { return static_cast<int>(capacity.size()); }
};

// Which cells of a page are filled.
class CellLayout final
{
public:
    CellLayout(int rows, int columns);

    bool isFilled(int row, int column) const { return m_filled[index(row, column)] != 0; }
    void setFilled(int row, int column, bool filled) { m_filled[index(row, column)] = filled ? 1 : 0; }
    void clear();

private:
    size_t index(int row, int column) const
    {
        return static_cast<size_t>(row) * static_cast<size_t>(m_columns) + static_cast<size_t>(column);
    }

    int m_columns;
    std::vector<quint8> m_filled; // row by row
};

// Whether any layout keeps the rules.
bool layoutExists(const LayoutRules &rules);

// Drawings of all rows that searchLayout() makes at most.
constexpr int maxDrawings = 100;

// Draws every row at random and repairs the columns that are too full, by at most maxPasses passes (at least one), then
// draws again. Nothing when maxDrawings drawings could not be repaired. The rules must have a layout.
std::optional<CellLayout> searchLayout(const LayoutRules &rules, int maxPasses);

// A random layout, found without search. The rules must have one.
CellLayout constructLayout(const LayoutRules &rules);

// The layout found by search, else the constructed one; nothing when there is none.
std::optional<CellLayout> findLayout(const LayoutRules &rules, int maxPasses);
