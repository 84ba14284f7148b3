// SPDX-License-Identifier: MIT
#include "mainwindow/CellStyling.h"

#include <algorithm>

namespace {
void colourBlock(Blocco &block, const QColor &colour)
{
    for (Riga &row : block) {
        for (Cella &cell : row) {
            cell.coloreSfondo = colour;
        }
    }
}
} // namespace

QVector<TablePosition> withCell(Pagina &page, QVector<TablePosition> positions)
{
    const auto isFiller = [&page](const TablePosition &place) {
        return cellAt(page, place.row, place.column) == nullptr;
    };
    positions.erase(std::remove_if(positions.begin(), positions.end(), isFiller), positions.end());
    return positions;
}

QVector<Pagina *> reachedPages(const QVector<Pagina *> &pages, int shown, bool allPages)
{
    if (allPages) {
        return pages;
    }
    return pages.mid(shown, shown < 0 ? 0 : 1);
}

void colourBlocks(const QVector<Pagina *> &pages, int block, bool allBlocks, const QColor &colour)
{
    for (Pagina *page : pages) {
        int index = 0;
        for (Blocco &candidate : *page) {
            if (allBlocks || index == block) {
                colourBlock(candidate, colour);
            }
            ++index;
        }
    }
}

bool changeCells(const QVector<Pagina *> &pages, int shown, const QVector<TablePosition> &positions, bool allPages,
                 const std::function<void(Cella &)> &change)
{
    if (shown < 0 || shown >= pages.size()) {
        return true;
    }
    const QVector<TablePosition> places = withCell(*pages[shown], positions);
    bool complete = true;
    for (Pagina *page : reachedPages(pages, shown, allPages)) {
        for (const TablePosition &place : places) {
            Cella *cell = cellAt(*page, place.row, place.column);
            if (cell != nullptr) {
                change(*cell);
            } else {
                complete = false;
            }
        }
    }
    return complete;
}
