// SPDX-License-Identifier: MIT
#pragma once

#include "model/Cartella.h"

// Fills pages with classic cards: every row has the same count of filled cells, columns hold consecutive ranges, no
// number occurs twice on a page. The order of random calls is fixed: one seed gives one page.
class GeneraCartellaClassica final
{
public:
    GeneraCartellaClassica();

    // Fills `page`, whose blocks all have the same rows and whose rows all have nColonne cells. Of each row nEstrazioni
    // cells are filled, nImmagini of them with the default image and nScritte with the default text. False, and the
    // page unchanged, when no such page exists.
    bool generate(Pagina *page, U8 nColonne, U8 nEstrazioni, U8 nImmagini, U8 nScritte, int nMin, int nMax);

    qint32 maxTentativi; // repair passes on one drawing before all rows are drawn again
};
