// SPDX-License-Identifier: MIT
#include "mainwindow/Selezione.h"

#include <algorithm>

namespace {
Selezione single(Pagina &page, const RowPosition &position, int column)
{
    Riga &row = begin(begin(page)[position.block])[position.row];
    Selezione selection;
    selection.block = position.block;
    selection.row = position.row;
    selection.column = column;
    selection.cell = column < row.nCelle ? begin(row) + column : nullptr;
    selection.kind = selection.cell != nullptr ? Selezione::OneCell : Selezione::Filler;
    return selection;
}

Selezione several(const Pagina &page, const RowPosition &first, const QVector<TablePosition> &places)
{
    const int endRow = first.firstRow + begin(page)[first.block].nRighe;
    const bool oneBlock = std::all_of(places.cbegin(), places.cend(), [&](const TablePosition &place) {
        return place.row >= first.firstRow && place.row < endRow;
    });
    Selezione selection;
    selection.kind = Selezione::Several;
    selection.block = oneBlock ? first.block : -1;
    return selection;
}
} // namespace

Selezione selectionOf(Pagina &page, const QVector<TablePosition> &places)
{
    const auto first = places.isEmpty() ? std::nullopt : rowPosition(page, places.first().row);
    if (!first) {
        return {};
    }
    Selezione selection =
        places.size() == 1 ? single(page, *first, places.first().column) : several(page, *first, places);
    selection.places = places.size();
    return selection;
}
