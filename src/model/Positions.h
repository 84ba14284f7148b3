// SPDX-License-Identifier: MIT
#pragma once

#include "model/Cartella.h"

#include <optional>

// A page as a table: the rows of all its blocks follow each other. Rows and columns of the table are 0-based, and a
// place of it may lie beyond the cells of its row.

struct TablePosition
{
    int row = 0;
    int column = 0;
};

// Where a row of the table lies in its page, all 0-based.
struct RowPosition
{
    int block = 0;
    int row = 0;      // in the block
    int firstRow = 0; // of the block, in the table
};

// None when the page has no such row.
[[nodiscard]] std::optional<RowPosition> rowPosition(const Pagina &page, int tableRow);

// Rows of all blocks of the page.
[[nodiscard]] int tableRowCount(const Pagina &page);

// The cell at a place of the table; null where there is none.
[[nodiscard]] Cella *cellAt(Pagina &page, int tableRow, int column);
[[nodiscard]] const Cella *cellAt(const Pagina &page, int tableRow, int column);

// The number of a block in its set, as players know it: "12.3" is the third block of page 12, both counted from 1.
[[nodiscard]] QString blockNumber(int page, int block);
