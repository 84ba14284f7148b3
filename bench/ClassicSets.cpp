// SPDX-License-Identifier: MIT
#include "ClassicSets.h"

#include "generation/GeneraCartellaClassica.h"

#include <QtGlobal>

void ClassicSets::fill(Pagina *page)
{
    if (!GeneraCartellaClassica().generate(page, columns, drawnPerRow, 0, 0, lowest, highest)) {
        qFatal("a page was not filled");
    }
}

std::unique_ptr<Cartella> ClassicSets::filled(int pages)
{
    auto set = std::make_unique<Cartella>(static_cast<quint16>(pages), blocks, rowsPerBlock, columns);
    for (Pagina *page : qAsConst(set->pagine)) {
        fill(page);
    }
    return set;
}

std::unique_ptr<Cartella> ClassicSets::firstPages(int pages)
{
    static Cartella all;
    while (all.getNumPages() < pages) {
        all.generateBlock(blocks, rowsPerBlock, columns);
        fill(all.pagine.last());
    }
    auto view = std::make_unique<Cartella>();
    view->pagineEsterne = 1;
    view->pagine = all.pagine.mid(0, pages);
    return view;
}
