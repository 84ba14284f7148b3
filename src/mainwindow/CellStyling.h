// SPDX-License-Identifier: MIT
#pragma once

#include "model/Positions.h"

#include <functional>

// Which pages, blocks and cells a command of the style panels reaches. All indices are 0-based.

// The page shown alone, or all pages. None when there is no such page.
[[nodiscard]] QVector<Pagina *> reachedPages(const QVector<Pagina *> &pages, int shown, bool allPages);

// The places that have a cell on the page.
[[nodiscard]] QVector<TablePosition> withCell(Pagina &page, QVector<TablePosition> positions);

// Gives the background of every cell of a block, or of all blocks; a page without such a block is left as it is.
void colourBlocks(const QVector<Pagina *> &pages, int block, bool allBlocks, const QColor &colour);

// Calls `change` for the cells at these places of the page shown and, with allPages, of every other page. False when
// another page had no cell at one of them: it was skipped. Places without a cell on the page shown are skipped
// everywhere.
bool changeCells(const QVector<Pagina *> &pages, int shown, const QVector<TablePosition> &positions, bool allPages,
                 const std::function<void(Cella &)> &change);
