// SPDX-License-Identifier: MIT
#include "model/Positions.h"

#include <utility>

std::optional<RowPosition> rowPosition(const Pagina &page, int tableRow)
{
    if (tableRow < 0) {
        return std::nullopt;
    }
    RowPosition position{0, tableRow, 0};
    for (const Blocco &block : page) {
        if (position.row < block.nRighe) {
            return position;
        }
        position.row -= block.nRighe;
        position.firstRow += block.nRighe;
        ++position.block;
    }
    return std::nullopt;
}

int tableRowCount(const Pagina &page)
{
    int rows = 0;
    for (const Blocco &block : page) {
        rows += block.nRighe;
    }
    return rows;
}

Cella *cellAt(Pagina &page, int tableRow, int column)
{
    return const_cast<Cella *>(cellAt(std::as_const(page), tableRow, column)); // a cell of a page that is not const
}

const Cella *cellAt(const Pagina &page, int tableRow, int column)
{
    const std::optional<RowPosition> position = rowPosition(page, tableRow);
    if (!position) {
        return nullptr;
    }
    const Riga &row = begin(begin(page)[position->block])[position->row];
    return column >= 0 && column < row.nCelle ? begin(row) + column : nullptr;
}

QString blockNumber(int page, int block)
{
    return QStringLiteral("%1.%2").arg(page).arg(block);
}
