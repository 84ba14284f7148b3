// SPDX-License-Identifier: MIT
#include "support/RaggedPage.h"

std::unique_ptr<Pagina> pageOfBlocks(const QVector<U8> &rows)
{
    auto page = std::make_unique<Pagina>();
    page->nBlocchi = static_cast<U8>(rows.size());
    page->blocchi = std::make_unique<Blocco[]>(static_cast<size_t>(rows.size()));
    for (int b = 0; b < rows.size(); ++b) {
        Blocco &block = page->blocchi[static_cast<size_t>(b)];
        block.nRighe = rows[b];
        block.righe = std::make_unique<Riga[]>(rows[b]);
        for (size_t r = 0; r < rows[b]; ++r) {
            block.righe[r].nCelle = 3;
            block.righe[r].celle = std::make_unique<Cella[]>(3);
        }
    }
    return page;
}

void shortenRow(Riga &row, U8 cells)
{
    row.nCelle = cells;
    row.celle = std::make_unique<Cella[]>(cells);
}
