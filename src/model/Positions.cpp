// SPDX-License-Identifier: MIT
#include "model/Positions.h"

namespace {
Cella *find(const Pagina &page, int tableRow, int column)
{
    const std::optional<RowPosition> position = rowPosition(page, tableRow);
    if (!position) {
        return nullptr;
    }
    const Blocco &block = page.blocchi[static_cast<size_t>(position->block)];
    const Riga &row = block.righe[static_cast<size_t>(position->row)];
    return column >= 0 && column < row.nCelle ? &row.celle[static_cast<size_t>(column)] : nullptr;
}
} // namespace

std::optional<RowPosition> rowPosition(const Pagina &page, int tableRow)
{
    if (tableRow < 0) {
        return std::nullopt;
    }
    int firstRow = 0;
    for (int block = 0; block < page.nBlocchi; ++block) {
        const int rows = page.blocchi[static_cast<size_t>(block)].nRighe;
        if (tableRow < firstRow + rows) {
            return RowPosition{block, tableRow - firstRow, firstRow};
        }
        firstRow += rows;
    }
    return std::nullopt;
}

int tableRowCount(const Pagina &page)
{
    int rows = 0;
    for (size_t block = 0; block < page.nBlocchi; ++block) {
        rows += page.blocchi[block].nRighe;
    }
    return rows;
}

Cella *cellAt(Pagina &page, int tableRow, int column)
{
    return find(page, tableRow, column);
}

const Cella *cellAt(const Pagina &page, int tableRow, int column)
{
    return find(page, tableRow, column);
}
