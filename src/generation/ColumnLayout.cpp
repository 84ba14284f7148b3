// SPDX-License-Identifier: MIT
#include "generation/ColumnLayout.h"

#include "generation/GUtils.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace {
// One drawing of all rows under repair.
class LayoutAttempt final
{
public:
    explicit LayoutAttempt(const LayoutRules &rules)
        : m_rules(rules)
        , m_layout(rules.rows, rules.columns())
        , m_filledInColumn(rules.capacity.size(), 0)
    {
    }

    const CellLayout &layout() const { return m_layout; }

    void drawRows()
    {
        const auto lastColumn = static_cast<unsigned>(m_rules.columns() - 1);
        m_layout.clear();
        std::fill(m_filledInColumn.begin(), m_filledInColumn.end(), 0);
        for (int row = 0; row < m_rules.rows; ++row) {
            const auto drawn = GUtils::generate_X_different_numbers(m_rules.filledPerRow, 0, lastColumn);
            for (const unsigned column : drawn) {
                m_layout.setFilled(row, static_cast<int>(column), true);
                ++m_filledInColumn[column];
            }
        }
    }

    // A column that receives cells may become too full: those at the left of `column` then wait for the next pass.
    void repair()
    {
        for (int column = 0; column < m_rules.columns(); ++column) {
            for (qint64 excess = excessOf(column); excess > 0; --excess) {
                moveOneCellFrom(column);
            }
        }
    }

    bool fits() const
    {
        for (int column = 0; column < m_rules.columns(); ++column) {
            if (excessOf(column) > 0) {
                return false;
            }
        }
        return true;
    }

private:
    qint64 excessOf(int column) const
    {
        const auto c = static_cast<size_t>(column);
        return m_filledInColumn[c] - m_rules.capacity[c];
    }

    void moveOneCellFrom(int column)
    {
        int row = 0;
        do {
            row = nextRandom() % m_rules.rows;
        } while (!m_layout.isFilled(row, column));

        const int target = freeColumn(row, column);
        m_layout.setFilled(row, column, false);
        m_layout.setFilled(row, target, true);
        --m_filledInColumn[static_cast<size_t>(column)];
        ++m_filledInColumn[static_cast<size_t>(target)];
    }

    // The next free column at the right, else from the left end; `column` itself in a row without a free one.
    int freeColumn(int row, int column) const
    {
        for (int step = 1; step < m_rules.columns(); ++step) {
            const int candidate = (column + step) % m_rules.columns();
            if (!m_layout.isFilled(row, candidate)) {
                return candidate;
            }
        }
        return column;
    }

    const LayoutRules &m_rules;
    CellLayout m_layout;
    std::vector<qint64> m_filledInColumn;
};

void shuffle(std::vector<int> &values)
{
    for (auto live = static_cast<int>(values.size()); live > 1; --live) {
        std::swap(values[static_cast<size_t>(nextRandom() % live)], values[static_cast<size_t>(live - 1)]);
    }
}

std::vector<int> shuffledIndices(int count)
{
    std::vector<int> indices(static_cast<size_t>(count));
    std::iota(indices.begin(), indices.end(), 0);
    shuffle(indices);
    return indices;
}
} // namespace

bool isClassic(int columns, int nMin, int nMax)
{
    return columns == 9 && nMin == 1 && nMax == 90;
}

std::vector<ColumnRange> rangesByTens(int columns)
{
    constexpr int ten = 10;
    std::vector<ColumnRange> ranges;
    ranges.reserve(size_t(columns));
    for (int c = 0; c < columns; ++c) {
        ranges.push_back({ten * c, ten * c + ten - 1});
    }
    ranges.front().first = 1;
    ranges.back().last = ten * columns;
    return ranges;
}

std::vector<ColumnRange> columnRanges(int columns, int nMin, int nMax)
{
    if (isClassic(columns, nMin, nMax) || (columns == 10 && nMin == 1 && nMax == 100)) {
        return rangesByTens(columns);
    }
    const qint64 count = qint64(nMax) - nMin + 1;
    std::vector<ColumnRange> ranges;
    for (int c = 0; c < columns; ++c) {
        const qint64 before = c * count / columns;
        const qint64 upTo = (count + c * count) / columns;
        ranges.push_back({static_cast<int>(before + nMin), static_cast<int>(upTo + nMin - 1)});
    }
    ranges.back().last = nMax;
    return ranges;
}

CellLayout::CellLayout(int rows, int columns)
    : m_columns(columns)
    , m_filled(static_cast<size_t>(rows) * static_cast<size_t>(columns), 0)
{
}

void CellLayout::clear()
{
    std::fill(m_filled.begin(), m_filled.end(), quint8(0));
}

bool layoutExists(const LayoutRules &rules)
{
    qint64 room = 0;
    for (const qint64 capacity : rules.capacity) {
        room += std::min<qint64>(capacity, rules.rows);
    }
    return rules.filledPerRow <= rules.columns() && room >= qint64(rules.rows) * rules.filledPerRow;
}

std::optional<CellLayout> searchLayout(const LayoutRules &rules, int maxPasses)
{
    LayoutAttempt attempt(rules);
    for (int drawing = 0; drawing < maxDrawings; ++drawing) {
        attempt.drawRows();
        for (int pass = 0; pass < std::max(1, maxPasses); ++pass) {
            attempt.repair();
            if (attempt.fits()) {
                return attempt.layout();
            }
        }
    }
    return std::nullopt;
}

// Row after row takes the columns with most room left. If a layout exists this never ends short: columns that must be
// in every remaining row have the most room, so they are taken first.
CellLayout constructLayout(const LayoutRules &rules)
{
    CellLayout layout(rules.rows, rules.columns());
    std::vector<qint64> room = rules.capacity;
    std::vector<int> columns = shuffledIndices(rules.columns());
    for (const int row : shuffledIndices(rules.rows)) {
        shuffle(columns); // columns with equal room in random order
        std::stable_sort(columns.begin(), columns.end(), [&room](int left, int right) {
            return room[static_cast<size_t>(left)] > room[static_cast<size_t>(right)];
        });
        for (int i = 0; i < rules.filledPerRow; ++i) {
            const int column = columns[static_cast<size_t>(i)];
            layout.setFilled(row, column, true);
            --room[static_cast<size_t>(column)];
        }
    }
    return layout;
}

std::optional<CellLayout> findLayout(const LayoutRules &rules, int maxPasses)
{
    if (!layoutExists(rules)) {
        return std::nullopt;
    }
    auto found = searchLayout(rules, maxPasses);
    return found ? found : constructLayout(rules);
}
